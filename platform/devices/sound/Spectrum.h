// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace Platform {

// The power of a piece of sound at evenly spaced frequencies, by a fast Fourier transform.
class Spectrum
{
public:
    // All pieces have this many samples, an even number.
    explicit Spectrum(std::size_t sampleCount);
    ~Spectrum();
    Spectrum(const Spectrum&) = delete;
    Spectrum& operator=(const Spectrum&) = delete;

    void measure(const std::vector<float>& samples);
    // Mean power of the tone with so many periods in the piece: half the square of its amplitude.
    double power(std::size_t periods) const { return m_powers.at(periods); }

private:
    struct Transform;

    std::unique_ptr<Transform> m_transform;
    std::vector<double> m_powers;
};

} // namespace Platform
