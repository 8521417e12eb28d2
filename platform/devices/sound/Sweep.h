// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

namespace Platform {

// A quiet tone that rises from 300 to 3,400 Hz within a second, the same number of octaves in equal
// times. Even headsets in telephone mode pass these frequencies.
namespace Sweep {

constexpr double Seconds = 1.0;
constexpr double LowestHz = 300.0;
constexpr double HighestHz = 3400.0;
constexpr double PeakDb = -20.0;
constexpr double FadeSeconds = 0.02; // at both ends, so that nothing clicks

// Correlations below this aren't the sweep. docs/report-format.md has what other sounds reach.
constexpr double LeastCorrelation = 0.25;

std::vector<float> samples(unsigned rate);

struct Match
{
    double correlation = 0; // 0 to 1
    double atSecond = 0;    // where the sweep begins
    double peakDb = 0;      // of the sweep in the recording
};

// The place that is most similar to the sweep. Nothing if the recording is shorter than the sweep,
// or digital silence.
std::optional<Match> bestMatch(const std::vector<float>& recording, unsigned rate);

} // namespace Sweep

} // namespace Platform
