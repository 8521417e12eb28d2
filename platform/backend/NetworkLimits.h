// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// The limits of the network step, which are fixed. They are compared as the step compares them, so
// that nothing else comes to another verdict.
namespace NetworkLimits {

constexpr int NotMeasured = -1; // in the place of a delay
constexpr int TooSlowMs = 500;
constexpr int WorstLossPercent = 70;

constexpr bool isDelayGood(int delayMs)
{
    return delayMs != NotMeasured && delayMs < TooSlowMs;
}

constexpr bool isLossGood(int lossPercent)
{
    return lossPercent <= WorstLossPercent;
}

constexpr bool arePassed(int delayMs, int lossPercent)
{
    return isDelayGood(delayMs) && isLossGood(lossPercent);
}

} // namespace NetworkLimits

} // namespace Platform
