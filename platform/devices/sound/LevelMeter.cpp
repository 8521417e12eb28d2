// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/LevelMeter.h"

#include "platform/backend/LevelScale.h"
#include "platform/devices/sound/SoundMath.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

constexpr double OffsetCutHz = 10.0;

} // namespace

LevelMeter::LevelMeter(unsigned rate)
    : m_blockSize(static_cast<std::size_t>(BlockSeconds * rate)),
      m_offsetPole(1.0 - 2.0 * Pi * OffsetCutHz / rate)
{
}

double LevelMeter::levelOf(double peak)
{
    return LevelScale::levelOf(decibelsOfAmplitude(peak));
}

std::optional<double> LevelMeter::add(float sample)
{
    // Drivers may deliver samples that are not numbers.
    const double value = std::isfinite(sample) ? static_cast<double>(sample) : 0.0;
    if (m_isFirst) {
        m_isFirst = false;
        m_lastSample = value;
    }
    m_withoutOffset = value - m_lastSample + m_offsetPole * m_withoutOffset;
    m_lastSample = value;
    m_peak = std::max(m_peak, std::abs(m_withoutOffset));
    if (++m_count < m_blockSize) {
        return std::nullopt;
    }
    endBlock();
    return m_level;
}

void LevelMeter::endBlock()
{
    const double decibels = decibelsOfAmplitude(m_peak);
    m_noiseDb = std::min(m_noiseDb, decibels);
    m_isSound = decibels > UnmistakableDb ||
                (decibels > QuietestDb && decibels > m_noiseDb + NoiseMarginDb);
    if (!hasHeardSound()) {
        m_heardBlocks = m_isSound ? m_heardBlocks + 1 : 0;
    }
    m_level = std::max(levelOf(m_peak), m_level - BlockSeconds / FallSeconds);
    m_level = std::max(m_level, 0.0);
    m_peak = 0.0;
    m_count = 0;
}

} // namespace Platform
