// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>

namespace Platform {

// Waits in short steps, so that time for which the process was stopped counts as one of them.
// waitFor takes milliseconds and returns whether the wait is over.
template <typename WaitFor>
bool waitInSteps(int timeoutMs, const WaitFor& waitFor)
{
    constexpr int StepMs = 100;
    int leftMs = timeoutMs;
    do {
        const int ms = std::min(leftMs, StepMs);
        if (waitFor(std::chrono::milliseconds(ms))) {
            return true;
        }
        leftMs -= ms;
    } while (leftMs > 0);
    return false;
}

} // namespace Platform
