// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace Platform {

constexpr double Pi = 3.14159265358979323846;

// Silence, whose logarithm is infinite, reads as this many decibels.
constexpr double SilenceDb = -180.0;

// Relative to full scale: the amplitude and the power of the loudest sample are 1.
inline double amplitudeOfDecibels(double decibels)
{
    return std::pow(10.0, decibels / 20.0);
}

inline double decibelsOfAmplitude(double amplitude)
{
    return amplitude > 0.0 ? std::max(20.0 * std::log10(amplitude), SilenceDb) : SilenceDb;
}

inline double decibelsOfPower(double power)
{
    return power > 0.0 ? std::max(10.0 * std::log10(power), SilenceDb) : SilenceDb;
}

} // namespace Platform
