// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

// The power of a sound at one frequency, by Goertzel's algorithm.
class ToneDetector
{
public:
    ToneDetector(double frequency, double rate);

    double frequency() const { return m_frequency; }
    void add(double sample);
    // Mean power of the tone in the samples since the last call: half the square of its amplitude.
    double takePower();

private:
    double m_frequency;
    double m_coefficient;
    double m_last = 0.0;
    double m_lastButOne = 0.0;
    double m_count = 0.0;
};

} // namespace Platform
