// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// The limits of the network step, which are fixed.
namespace NetworkLimits {

constexpr int TooSlowMs = 500;
constexpr int WorstLossPercent = 70;

// A negative delay wasn't measured.
inline bool arePassed(int delayMs, int lossPercent)
{
    return delayMs >= 0 && delayMs < TooSlowMs && lossPercent <= WorstLossPercent;
}

} // namespace NetworkLimits
