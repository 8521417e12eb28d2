// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>

namespace Platform {

// A peak meter on the scale of LevelScale. Speech at a normal distance peaks at -30 to -20 dBFS,
// half the bar and more. It rises at once and falls from full to nothing in FallSeconds. A constant
// offset, as cheap devices have, doesn't count.
class LevelMeter
{
public:
    static constexpr double FallSeconds = 0.4;
    // A block is the shortest time whose peak means something.
    static constexpr double BlockSeconds = 0.01;
    // Sound has been heard once so many blocks in a row stand out of the noise by NoiseMarginDb and
    // are louder than QuietestDb, or are louder than UnmistakableDb whatever the noise.
    static constexpr int HeardBlocks = 3;
    static constexpr double QuietestDb = -50.0;
    static constexpr double NoiseMarginDb = 10.0;
    static constexpr double UnmistakableDb = -30.0;

    explicit LevelMeter(unsigned rate);

    static double levelOf(double peak); // of an amplitude, 0 to 1

    // One sample; a level at the end of each block.
    std::optional<double> add(float sample);
    bool isSound() const { return m_isSound; } // the last whole block stands out of the noise
    bool hasHeardSound() const { return m_heardBlocks >= HeardBlocks; }

private:
    void endBlock();

    std::size_t m_blockSize;
    double m_offsetPole;
    std::size_t m_count = 0;
    bool m_isFirst = true;
    double m_lastSample = 0.0;
    double m_withoutOffset = 0.0;
    double m_peak = 0.0;
    double m_noiseDb = 0.0; // the quietest block so far
    bool m_isSound = false;
    int m_heardBlocks = 0;
    double m_level = 0.0;
};

} // namespace Platform
