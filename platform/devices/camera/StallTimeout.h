// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace Platform {

// Whether a camera delivers: a picture came within the last five frame periods or 500 ms,
// whichever is longer.
class StallTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    // The agreed pictures per second; 0 where the camera agreed to none in particular.
    void setRate(double framesPerSecond);
    void frameArrived(Clock::time_point now);
    void reset(); // no picture has come yet; the rate stays

    bool delivers(Clock::time_point now) const;
    Clock::duration allowance() const;

private:
    Clock::duration m_agreedPeriod{};
    Clock::duration m_measuredPeriod{};
    Clock::time_point m_last;
    bool m_hasFrame = false;
};

} // namespace Platform
