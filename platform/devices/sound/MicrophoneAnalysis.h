// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/ToneDetector.h"

#include <QJsonObject>
#include <array>
#include <mutex>
#include <vector>

namespace Platform {

// What the report tells of a microphone's sound, gathered while it is open: how loud, how noisy,
// how often cut off at full scale, how much mains hum, and up to which frequency it hears. Fed on
// the sound thread, asked on any.
class MicrophoneAnalysis
{
public:
    explicit MicrophoneAnalysis(unsigned rate);

    void add(float sample, bool isHeard); // isHeard: part of what stands out of the noise
    QJsonObject figures() const;          // empty before the first tenth of a second

private:
    struct Figures
    {
        double seconds = 0.0;
        double peak = 0.0;
        double quietestPower = 1.0;
        double clipped = 0.0; // samples
        double samples = 0.0;
        double quietPower = 0.0; // of the pieces in which nothing was heard
        double hum50 = 0.0;      // of the same
        double hum60 = 0.0;
        double bandwidth = 0.0;
    };

    void endPiece();
    void measureBandwidth();

    double m_rate;
    std::size_t m_pieceSize;
    std::size_t m_count = 0;
    bool m_isHeard = false;
    double m_power = 0.0;
    double m_peak = 0.0;
    double m_clipped = 0.0;
    std::array<ToneDetector, 3> m_hum50;
    std::array<ToneDetector, 3> m_hum60;
    std::vector<ToneDetector> m_bands;
    std::vector<double> m_heardBands; // power, summed over the heard pieces
    std::vector<double> m_quietBands;
    double m_heardPieces = 0.0;
    double m_quietPieces = 0.0;

    mutable std::mutex m_mutex;
    Figures m_figures; // guarded by m_mutex
};

} // namespace Platform
