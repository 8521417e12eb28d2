// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>
#include <sys/types.h>

// Processor time since the construction, of one thread or process.
class ProcessorClock
{
public:
    enum class Of : clockid_t {
        Thread = CLOCK_THREAD_CPUTIME_ID, // the calling one
        Process = CLOCK_PROCESS_CPUTIME_ID,
    };

    explicit ProcessorClock(Of of) : m_clock(static_cast<clockid_t>(of)), m_beganMs(nowMs()) {}
    // Of another process. If it has ended, no time passes.
    explicit ProcessorClock(long long processId) : m_clock(clockOf(processId)), m_beganMs(nowMs())
    {
    }

    double elapsedMs() const { return nowMs() - m_beganMs; }

private:
    static clockid_t clockOf(long long processId)
    {
        clockid_t clock = {};
        ::clock_getcpuclockid(static_cast<pid_t>(processId), &clock);
        return clock;
    }

    double nowMs() const
    {
        timespec now = {};
        ::clock_gettime(m_clock, &now);
        return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
    }

    clockid_t m_clock;
    double m_beganMs;
};
