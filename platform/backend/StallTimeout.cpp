// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/StallTimeout.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr int AllowedPeriods = 5;
constexpr std::chrono::milliseconds ShortestTimeout(500);
constexpr std::chrono::seconds LongestPeriod(1); // a lower rate is a fault

} // namespace

void StallTimeout::setRate(double framesPerSecond)
{
    m_agreedPeriod = {};
    m_measuredPeriod = {};
    if (framesPerSecond > 0.0) {
        using Seconds = std::chrono::duration<double>; // a whole number couldn't hold any period
        m_agreedPeriod = std::chrono::duration_cast<Clock::duration>(
            std::min<Seconds>(Seconds(1.0 / framesPerSecond), LongestPeriod));
    }
}

void StallTimeout::frameArrived(Clock::time_point now)
{
    if (m_hasFrame) {
        m_measuredPeriod = std::min<Clock::duration>(now - m_last, LongestPeriod);
    }
    m_last = now;
    m_hasFrame = true;
}

void StallTimeout::reset()
{
    m_hasFrame = false;
    m_measuredPeriod = {};
}

bool StallTimeout::delivers(Clock::time_point now) const
{
    return m_hasFrame && now - m_last <= duration();
}

StallTimeout::Clock::duration StallTimeout::duration() const
{
    const Clock::duration period =
        m_agreedPeriod > Clock::duration::zero() ? m_agreedPeriod : m_measuredPeriod;
    return std::max<Clock::duration>(AllowedPeriods * period, ShortestTimeout);
}

} // namespace Platform
