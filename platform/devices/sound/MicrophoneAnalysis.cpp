// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/MicrophoneAnalysis.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

// A tenth of a second tells 50 from 60 Hz apart exactly.
constexpr double PieceSeconds = 0.1;
constexpr float FullScale = 0.999F;
constexpr double Silence = 1e-12; // power, -120 dBFS
constexpr double BandStepHz = 500.0;
constexpr double LastBandHz = 20000.0;
// A band is heard in where it is stronger than the same band of the noise, and not weaker than this
// part of the strongest one.
constexpr double AboveNoise = 4.0;
constexpr double BelowStrongest = 1e-6;

double decibelsOf(double power)
{
    return std::round(100.0 * std::log10(std::max(power, Silence))) / 10.0;
}

template <typename Detectors>
double takePowers(Detectors& detectors)
{
    double sum = 0.0;
    for (ToneDetector& detector : detectors) {
        sum += detector.takePower();
    }
    return sum;
}

} // namespace

MicrophoneAnalysis::MicrophoneAnalysis(unsigned rate)
    : m_rate(rate),
      m_pieceSize(static_cast<std::size_t>(PieceSeconds * rate)),
      m_hum50{ToneDetector(50, rate), ToneDetector(100, rate), ToneDetector(150, rate)},
      m_hum60{ToneDetector(60, rate), ToneDetector(120, rate), ToneDetector(180, rate)}
{
    for (double frequency = BandStepHz; frequency <= LastBandHz; frequency += BandStepHz) {
        m_bands.emplace_back(frequency, rate);
    }
    m_heardBands.resize(m_bands.size());
    m_quietBands.resize(m_bands.size());
}

void MicrophoneAnalysis::add(float sample, bool isHeard)
{
    const double value = std::isfinite(sample) ? static_cast<double>(sample) : 0.0;
    m_isHeard = m_isHeard || isHeard;
    m_power += value * value;
    m_peak = std::max(m_peak, std::abs(value));
    if (std::abs(sample) >= FullScale) {
        m_clipped += 1.0;
    }
    for (auto* hum : {&m_hum50, &m_hum60}) {
        for (ToneDetector& detector : *hum) {
            detector.add(value);
        }
    }
    for (ToneDetector& band : m_bands) {
        band.add(value);
    }
    if (++m_count >= m_pieceSize) {
        endPiece();
    }
}

void MicrophoneAnalysis::endPiece()
{
    const double count = static_cast<double>(m_count);
    const double hum50 = takePowers(m_hum50);
    const double hum60 = takePowers(m_hum60);
    std::vector<double>& bands = m_isHeard ? m_heardBands : m_quietBands;
    (m_isHeard ? m_heardPieces : m_quietPieces) += 1.0;
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        bands[i] += m_bands[i].takePower();
    }
    {
        const std::lock_guard lock(m_mutex);
        m_figures.seconds += count / m_rate;
        m_figures.samples += count;
        m_figures.peak = std::max(m_figures.peak, m_peak);
        m_figures.clipped += m_clipped;
        m_figures.quietestPower = std::min(m_figures.quietestPower, m_power / count);
        if (!m_isHeard) {
            m_figures.quietPower += m_power / count;
            m_figures.hum50 += hum50;
            m_figures.hum60 += hum60;
        }
        measureBandwidth();
    }
    m_count = 0;
    m_isHeard = false;
    m_power = 0.0;
    m_peak = 0.0;
    m_clipped = 0.0;
}

void MicrophoneAnalysis::measureBandwidth()
{
    const double strongest = *std::max_element(m_heardBands.begin(), m_heardBands.end());
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        const double noise =
            m_quietPieces > 0.0 ? m_quietBands[i] / m_quietPieces * m_heardPieces : 0.0;
        if (m_heardBands[i] > BelowStrongest * strongest && m_heardBands[i] > AboveNoise * noise) {
            m_figures.bandwidth = m_bands[i].frequency();
        }
    }
}

QJsonObject MicrophoneAnalysis::figures() const
{
    const std::lock_guard lock(m_mutex);
    if (m_figures.samples == 0.0) {
        return {};
    }
    const bool is60 = m_figures.hum60 > m_figures.hum50;
    const double hum = is60 ? m_figures.hum60 : m_figures.hum50;
    const double share =
        m_figures.quietPower > Silence ? std::min(1.0, hum / m_figures.quietPower) : 0.0;
    return {{QStringLiteral("seconds"), std::round(10.0 * m_figures.seconds) / 10.0},
            {QStringLiteral("peakDb"), decibelsOf(m_figures.peak * m_figures.peak)},
            {QStringLiteral("noiseFloorDb"), decibelsOf(m_figures.quietestPower)},
            {QStringLiteral("clippedShare"), m_figures.clipped / m_figures.samples},
            {QStringLiteral("humHz"), is60 ? 60 : 50},
            {QStringLiteral("humShare"), std::round(1000.0 * share) / 1000.0},
            {QStringLiteral("bandwidthHz"), m_figures.bandwidth}};
}

} // namespace Platform
