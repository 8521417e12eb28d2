// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Injection.h"

#include "tests/support/GapMeter.h"

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

// Sanitizers make the program slower, so the limit holds only without them.
void Injection::noteGaps(const TestSupport::GapCount& gaps)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr bool IsJudged = false;
#else
    constexpr bool IsJudged = true;
#endif
    m_gaps.add(gaps);
    require(!IsJudged || gaps.longestMs() <= TestSupport::MaxGapMs,
            QStringLiteral("the event loop stood still for %1 ms").arg(gaps.longestMs()));
}
