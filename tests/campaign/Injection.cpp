// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Injection.h"

#include "tests/support/GapMeter.h"

#include <algorithm>

Injection::Injection(quint32 seed, int number)
    : m_random(seed + static_cast<quint32>(number)), m_number(number)
{
}

int Injection::random(int from, int to)
{
    return m_random.bounded(from, to + 1);
}

bool Injection::require(bool isTrue, const QString& what)
{
    if (!isTrue) {
        fail(what);
    }
    return isTrue;
}

// The limits hold for what ships.
void Injection::noteGaps(qint64 longestMs, double usualMs)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr bool IsJudged = false;
#else
    constexpr bool IsJudged = true;
#endif
    m_longestGapMs = std::max(m_longestGapMs, longestMs);
    require(!IsJudged || longestMs <= TestSupport::MaxGapMs,
            QStringLiteral("the event loop stood still for %1 ms").arg(longestMs));
    require(!IsJudged || usualMs <= TestSupport::UsualGapMs,
            QStringLiteral("99 of 100 gaps are up to %1 ms").arg(usualMs));
}
