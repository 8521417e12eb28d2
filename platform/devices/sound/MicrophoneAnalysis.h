// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/TimeSeries.h"
#include "platform/devices/sound/Spectrum.h"

#include <QJsonObject>
#include <mutex>
#include <vector>

namespace Platform {

// What the report says about the sound of an open microphone: loudness, noise, clipping, mains hum,
// and the highest frequency that it hears. The sound thread feeds it; any thread may ask.
class MicrophoneAnalysis
{
public:
    explicit MicrophoneAnalysis(unsigned rate);

    void add(float sample, bool isHeard); // isHeard: the sample belongs to sound above the noise
    QJsonObject figures() const;          // empty during the first tenth of a second

private:
    struct Figures
    {
        double seconds = 0.0;
        double peak = 0.0;
        double quietestPower = 1.0;
        double clipped = 0.0; // samples
        double samples = 0.0;
        double quietPower = 0.0; // sum over the pieces in which nothing was heard
        double hum50 = 0.0;      // power in the same pieces
        double hum60 = 0.0;
        bool hasQuietPiece = false; // until then, the three above are of all pieces
        double bandwidth = 0.0;
        double secondPower = 0.0; // sum over the pieces of the second under way
        int secondPieces = 0;
        TimeSeries levels;
    };

    void endPiece();
    void noteLevel(double power);
    void measureBandwidth();
    double powerAt(double frequency) const; // in the last piece
    double humPower(double mainsHz) const;  // of the mains frequency and its first harmonics

    double m_rate;
    std::size_t m_pieceSize;
    std::vector<float> m_piece;
    Spectrum m_spectrum;
    bool m_isHeard = false;
    double m_power = 0.0;
    double m_peak = 0.0;
    double m_clipped = 0.0;
    std::vector<double> m_bands;      // frequencies
    std::vector<double> m_heardBands; // power, summed over the heard pieces
    std::vector<double> m_quietBands; // the same for the other pieces
    double m_heardPieces = 0.0;
    double m_quietPieces = 0.0;

    mutable std::mutex m_mutex;
    Figures m_figures; // guarded by m_mutex
};

} // namespace Platform
