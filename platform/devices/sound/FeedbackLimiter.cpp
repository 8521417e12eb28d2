// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/FeedbackLimiter.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

constexpr double PeakReleaseSeconds = 0.15;
constexpr double RecoverySeconds = 0.5;
// A sudden change of the gain would be heard as a click.
constexpr float DuckingPerSample = 0.99F;

} // namespace

FeedbackLimiter::FeedbackLimiter(unsigned rate)
    : m_second(rate),
      m_peakRelease(static_cast<float>(std::exp(-1.0 / (PeakReleaseSeconds * rate)))),
      m_powerShare(static_cast<float>(1.0 / (BuildUpSeconds * rate))),
      m_recoveryStep(static_cast<float>(1.0 / (RecoverySeconds * rate)))
{
}

float FeedbackLimiter::pass(float sample)
{
    const float value = std::isfinite(sample) ? sample : 0.0F;
    m_peak = std::max(std::abs(value), m_peak * m_peakRelease);
    m_power += m_powerShare * (value * value - m_power);

    if (m_holdLeft > 0.0) {
        m_holdLeft -= 1.0;
        m_gain = std::max(DuckedGain, m_gain * DuckingPerSample);
        m_power = 0.0F; // measured anew after the hold
    } else if (m_power > BuildUpRms * BuildUpRms) {
        m_holdLeft = m_hold * m_second;
        m_hold = std::min(2.0 * m_hold, LastHoldSeconds);
        m_calm = 0.0;
    } else {
        m_gain = std::min(1.0F, m_gain + m_recoveryStep);
        m_calm += 1.0;
        if (m_calm > ForgetSeconds * m_second) {
            m_hold = FirstHoldSeconds;
        }
    }
    const float limited = m_peak > Ceiling ? Ceiling / m_peak : 1.0F;
    return value * limited * m_gain;
}

} // namespace Platform
