// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>

// Processor time since the construction. The time of other programs doesn't count.
class ProcessorClock
{
public:
    enum class Of : clockid_t {
        Thread = CLOCK_THREAD_CPUTIME_ID, // the calling one
        Process = CLOCK_PROCESS_CPUTIME_ID,
    };

    explicit ProcessorClock(Of of) : m_of(of), m_beganMs(nowMs()) {}

    double elapsedMs() const { return nowMs() - m_beganMs; }

private:
    double nowMs() const
    {
        timespec now = {};
        ::clock_gettime(static_cast<clockid_t>(m_of), &now);
        return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
    }

    Of m_of;
    double m_beganMs;
};
