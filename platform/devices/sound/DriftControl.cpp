// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftControl.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

// A millisecond too much is worked off in a second, and what it takes to keep it so is learnt from
// window to window, as slowly as it comes to rest without swinging.
constexpr double DeviationPerMs = 0.001;
constexpr double DriftPerMs = DeviationPerMs * DeviationPerMs / 4.0 * DriftControl::WindowMs;
// Worse clocks there are not.
constexpr double MaxDrift = 0.012;

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
        m_deviation = m_drift;
    } else {
        m_drift = std::clamp(m_drift + tooMuch * DriftPerMs, -MaxDrift, MaxDrift);
        m_deviation = m_drift + tooMuch * DeviationPerMs;
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
