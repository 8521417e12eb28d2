// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftResampler.h"

#include <algorithm>

namespace Platform {

namespace {

// A cubic through the two middle samples with the slopes of their neighbours.
double between(const std::array<float, 4>& samples, double phase)
{
    const double a = static_cast<double>(samples[0]);
    const double b = static_cast<double>(samples[1]);
    const double c = static_cast<double>(samples[2]);
    const double d = static_cast<double>(samples[3]);
    const double slopeB = (c - a) / 2.0;
    const double slopeC = (d - b) / 2.0;
    const double third = 2.0 * (b - c) + slopeB + slopeC;
    const double second = 3.0 * (c - b) - 2.0 * slopeB - slopeC;
    return ((third * phase + second) * phase + slopeB) * phase + b;
}

} // namespace

void DriftResampler::setDeviation(double deviation)
{
    m_deviation = std::clamp(deviation, -MaxDeviation, MaxDeviation);
}

void DriftResampler::process(float sample, std::vector<float>& result)
{
    std::rotate(m_recent.begin(), m_recent.begin() + 1, m_recent.end());
    m_recent.back() = sample;
    for (; m_phase < 1.0; m_phase += 1.0 + m_deviation) {
        result.push_back(static_cast<float>(between(m_recent, m_phase)));
    }
    m_phase -= 1.0;
}

} // namespace Platform
