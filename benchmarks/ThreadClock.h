// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ctime>

// The processor time of the calling thread since the construction: what other programs take doesn't
// count.
class ThreadClock
{
public:
    ThreadClock() : m_beganMs(nowMs()) {}

    double elapsedMs() const { return nowMs() - m_beganMs; }

private:
    static double nowMs()
    {
        timespec now = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return 1e3 * static_cast<double>(now.tv_sec) + 1e-6 * static_cast<double>(now.tv_nsec);
    }

    double m_beganMs;
};
