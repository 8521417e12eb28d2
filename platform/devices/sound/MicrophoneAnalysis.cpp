// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/MicrophoneAnalysis.h"

#include "platform/devices/sound/SoundMath.h"

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

// 0.1 s holds whole periods of all frequencies measured below, so that none leaks into another.
constexpr double PieceSeconds = 0.1;
constexpr int PiecesPerSecond = 10;
constexpr int HumHarmonics = 3;
constexpr float FullScale = 0.999F;
constexpr double SilentPower = 1e-12; // -120 dBFS
constexpr double BandStepHz = 500.0;
constexpr double LastBandHz = 20000.0;
// The microphone hears a band if its power is this many times the noise in that band, and at least
// this part of the strongest band's power.
constexpr double AboveNoise = 4.0;
constexpr double BelowStrongest = 1e-6;

double roundedDecibels(double power)
{
    return std::round(10.0 * decibelsOfPower(std::max(power, SilentPower))) / 10.0;
}

} // namespace

MicrophoneAnalysis::MicrophoneAnalysis(unsigned rate)
    : m_rate(rate),
      m_pieceSize(2 * static_cast<std::size_t>(PieceSeconds * rate / 2.0)),
      m_spectrum(m_pieceSize)
{
    m_piece.reserve(m_pieceSize);
    const double lastBand = std::min(LastBandHz, m_rate / 2.0);
    for (double frequency = BandStepHz; frequency <= lastBand; frequency += BandStepHz) {
        m_bands.push_back(frequency);
    }
    m_heardBands.resize(m_bands.size());
    m_quietBands.resize(m_bands.size());
}

void MicrophoneAnalysis::add(float sample, bool isHeard)
{
    // Drivers may deliver samples that are not numbers.
    const float finite = std::isfinite(sample) ? sample : 0.0F;
    const auto value = static_cast<double>(finite);
    m_isHeard = m_isHeard || isHeard;
    m_power += value * value;
    m_peak = std::max(m_peak, std::abs(value));
    if (std::abs(sample) >= FullScale) {
        m_clipped += 1.0;
    }
    m_piece.push_back(finite);
    if (m_piece.size() >= m_pieceSize) {
        endPiece();
    }
}

void MicrophoneAnalysis::endPiece()
{
    const auto count = static_cast<double>(m_piece.size());
    m_spectrum.measure(m_piece);
    std::vector<double>& bands = m_isHeard ? m_heardBands : m_quietBands;
    (m_isHeard ? m_heardPieces : m_quietPieces) += 1.0;
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        bands[i] += powerAt(m_bands[i]);
    }
    {
        const std::scoped_lock lock(m_mutex);
        m_figures.seconds += count / m_rate;
        m_figures.samples += count;
        m_figures.peak = std::max(m_figures.peak, m_peak);
        m_figures.clipped += m_clipped;
        m_figures.quietestPower = std::min(m_figures.quietestPower, m_power / count);
        if (!m_isHeard && !m_figures.hasQuietPiece) {
            m_figures.hasQuietPiece = true;
            m_figures.quietPower = m_figures.hum50 = m_figures.hum60 = 0.0;
        }
        // A hum as loud as speech is sound without a pause.
        if (!m_isHeard || !m_figures.hasQuietPiece) {
            m_figures.quietPower += m_power / count;
            m_figures.hum50 += humPower(50.0);
            m_figures.hum60 += humPower(60.0);
        }
        measureBandwidth();
        noteLevel(m_power / count);
    }
    m_piece.clear();
    m_isHeard = false;
    m_power = 0.0;
    m_peak = 0.0;
    m_clipped = 0.0;
}

void MicrophoneAnalysis::noteLevel(double power)
{
    m_figures.secondPower += power;
    if (++m_figures.secondPieces == PiecesPerSecond) {
        m_figures.levels.add(roundedDecibels(m_figures.secondPower / PiecesPerSecond));
        m_figures.secondPower = 0.0;
        m_figures.secondPieces = 0;
    }
}

void MicrophoneAnalysis::measureBandwidth()
{
    const double strongest = *std::max_element(m_heardBands.begin(), m_heardBands.end());
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        const double noise =
            m_quietPieces > 0.0 ? m_quietBands[i] / m_quietPieces * m_heardPieces : 0.0;
        if (m_heardBands[i] > BelowStrongest * strongest && m_heardBands[i] > AboveNoise * noise) {
            m_figures.bandwidth = m_bands[i];
        }
    }
}

double MicrophoneAnalysis::powerAt(double frequency) const
{
    const double periods = frequency * static_cast<double>(m_pieceSize) / m_rate;
    return m_spectrum.power(static_cast<std::size_t>(std::lround(periods)));
}

double MicrophoneAnalysis::humPower(double mainsHz) const
{
    double sum = 0.0;
    for (int harmonic = 1; harmonic <= HumHarmonics; ++harmonic) {
        sum += powerAt(harmonic * mainsHz);
    }
    return sum;
}

QJsonObject MicrophoneAnalysis::figures() const
{
    const std::scoped_lock lock(m_mutex);
    if (m_figures.samples == 0.0) {
        return {};
    }
    const bool is60 = m_figures.hum60 > m_figures.hum50;
    const double hum = is60 ? m_figures.hum60 : m_figures.hum50;
    const double share =
        m_figures.quietPower > SilentPower ? std::min(1.0, hum / m_figures.quietPower) : 0.0;
    QJsonObject result{{QStringLiteral("seconds"), std::round(10.0 * m_figures.seconds) / 10.0},
                       {QStringLiteral("peakDb"), roundedDecibels(m_figures.peak * m_figures.peak)},
                       {QStringLiteral("noiseFloorDb"), roundedDecibels(m_figures.quietestPower)},
                       {QStringLiteral("clippedShare"), m_figures.clipped / m_figures.samples},
                       {QStringLiteral("humHz"), is60 ? 60 : 50},
                       {QStringLiteral("humShare"), std::round(1000.0 * share) / 1000.0},
                       {QStringLiteral("bandwidthHz"), m_figures.bandwidth}};
    if (!m_figures.levels.isEmpty()) {
        result.insert(QLatin1String(SeriesKeys::Level), m_figures.levels.toJson());
    }
    return result;
}

} // namespace Platform
