// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/DriftControl.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

// A millisecond too much is worked off in two seconds.
constexpr double DeviationPerMs = 0.0005;

} // namespace

void DriftControl::observe(double storeMs, double addedMs)
{
    m_lowestMs = m_observedMs == 0.0 ? storeMs : std::min(m_lowestMs, storeMs);
    m_observedMs += addedMs;
    if (m_observedMs < WindowMs) {
        return;
    }
    m_observedMs = 0.0;
    m_reserveMs = std::max(m_reserveMs - CalmMs, FirstReserveMs);
    const double tooMuch = m_lowestMs - m_reserveMs;
    if (tooMuch > ExcessMs) {
        m_excessMs = tooMuch;
        m_deviation = 0.0;
    } else {
        m_deviation = tooMuch * DeviationPerMs;
    }
}

void DriftControl::ranDry()
{
    m_reserveMs = std::min(m_reserveMs + RanDryMs, LastReserveMs);
    m_observedMs = 0.0;
}

double DriftControl::takeExcessMs()
{
    return std::exchange(m_excessMs, 0.0);
}

} // namespace Platform
