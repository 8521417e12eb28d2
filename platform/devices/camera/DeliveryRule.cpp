// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/DeliveryRule.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr int AllowedPeriods = 5;
constexpr std::chrono::milliseconds LeastAllowance(500);
constexpr std::chrono::seconds LongestPeriod(1); // slower than that is a fault, not a rate

} // namespace

void DeliveryRule::setRate(double picturesPerSecond)
{
    m_agreedPeriod = {};
    m_measuredPeriod = {};
    if (picturesPerSecond > 0.0) {
        m_agreedPeriod =
            std::min<Clock::duration>(std::chrono::duration_cast<Clock::duration>(
                                          std::chrono::duration<double>(1.0 / picturesPerSecond)),
                                      LongestPeriod);
    }
}

void DeliveryRule::pictureArrived(Clock::time_point now)
{
    if (m_hasPicture) {
        m_measuredPeriod = std::min<Clock::duration>(now - m_last, LongestPeriod);
    }
    m_last = now;
    m_hasPicture = true;
}

void DeliveryRule::reset()
{
    m_hasPicture = false;
    m_measuredPeriod = {};
}

bool DeliveryRule::delivers(Clock::time_point now) const
{
    return m_hasPicture && now - m_last <= allowance();
}

DeliveryRule::Clock::duration DeliveryRule::allowance() const
{
    const Clock::duration period =
        m_agreedPeriod > Clock::duration::zero() ? m_agreedPeriod : m_measuredPeriod;
    return std::max<Clock::duration>(AllowedPeriods * period, LeastAllowance);
}

} // namespace Platform
