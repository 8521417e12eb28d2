// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace Platform {

// Stretches or squeezes a sound by a hundredth or so, so that one device's clock follows another's
// without a tear. Two samples of delay.
class DriftResampler
{
public:
    static constexpr double MaxDeviation = 0.015;

    // The share by which the sound is made shorter; a negative one makes it longer.
    void setDeviation(double deviation);
    double deviation() const { return m_deviation; }
    void process(float sample, std::vector<float>& result); // appends none, one or two

private:
    double m_deviation = 0.0;
    double m_phase = 0.0; // between the two middle samples
    std::array<float, 4> m_recent{};
};

} // namespace Platform
