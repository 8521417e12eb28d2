// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <chrono>

namespace Platform {

// Whether a camera delivers: a frame came within the last five frame periods or 500 ms, whichever
// is longer.
class CLASSROOMBACKEND_EXPORT StallTimeout
{
public:
    using Clock = std::chrono::steady_clock;

    // The agreed frames per second; 0 if none was agreed: then the last period counts.
    void setRate(double framesPerSecond);
    void frameArrived(Clock::time_point now);
    void reset(); // no frame has come yet; the rate stays

    bool hasFrame() const { return m_hasFrame; }
    bool delivers(Clock::time_point now) const;
    Clock::duration duration() const;

private:
    Clock::duration m_agreedPeriod{};
    Clock::duration m_measuredPeriod{};
    Clock::time_point m_last;
    bool m_hasFrame = false;
};

} // namespace Platform
