// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftControl.h"

#include <algorithm>
#include <utility>

namespace Platform {

namespace {

// A proportional and integral controller. One millisecond too much is gone after one second; the
// integral part is as strong as it can be without oscillation (critical damping).
constexpr double DeviationPerMs = 0.001;
constexpr double DriftPerMs = DeviationPerMs * DeviationPerMs / 4.0 * DriftControl::WindowMs;
// No real clock drifts further.
constexpr double MaxDrift = 0.012;

} // namespace

void DriftControl::observe(double fillMs, double addedMs)
{
    m_lowestMs = m_observedMs == 0.0 ? fillMs : std::min(m_lowestMs, fillMs);
    m_observedMs += addedMs;
    if (m_observedMs < WindowMs) {
        return;
    }
    m_observedMs = 0.0;
    m_targetMs = std::max(m_targetMs - DecayMs, m_firstTargetMs);
    const double tooMuchMs = m_lowestMs - m_targetMs;
    if (tooMuchMs > ExcessMs) {
        m_excessMs = tooMuchMs;
        m_deviation = m_drift;
    } else {
        m_drift = std::clamp(m_drift + tooMuchMs * DriftPerMs, -MaxDrift, MaxDrift);
        m_deviation = m_drift + tooMuchMs * DeviationPerMs;
    }
}

void DriftControl::noteUnderflow()
{
    m_targetMs = std::min(m_targetMs + UnderflowStepMs, MaxTargetMs);
    m_observedMs = 0.0;
}

double DriftControl::takeExcessMs()
{
    return std::exchange(m_excessMs, 0.0);
}

} // namespace Platform
