// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>

namespace Platform {

// A peak meter on the scale of LevelScale. Speech at a normal distance peaks at -30 to -20 dBFS,
// which fills half the bar and more. The level rises at once and falls from full to zero in
// FallSeconds. The constant offset of cheap devices is filtered out.
class LevelMeter
{
public:
    static constexpr double FallSeconds = 0.4;
    // One peak is taken per block. A shorter block could miss the peak of a low tone.
    static constexpr double BlockSeconds = 0.01;
    // Sound counts as heard after HeardBlocks blocks in a row that are loud enough: louder than
    // QuietestDb and NoiseMarginDb above the noise, or louder than UnmistakableDb in any noise.
    static constexpr int HeardBlocks = 3;
    static constexpr double QuietestDb = -50.0;
    static constexpr double NoiseMarginDb = 10.0;
    static constexpr double UnmistakableDb = -30.0;

    explicit LevelMeter(unsigned rate);

    static double levelOf(double peak); // peak: an amplitude, 0 to 1

    // Returns a level with the last sample of each block.
    std::optional<double> add(float sample);
    bool isSound() const { return m_isSound; } // the last whole block is loud enough
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
