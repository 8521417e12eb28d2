// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Signals.h"
#include "tests/support/SoundTool.h"

#include <QString>
#include <chrono>
#include <vector>

namespace TestSupport {

// Records a speaker or a microphone, beginning with its construction.
class SoundRecording
{
public:
    static constexpr int Rate = SoundRate;

    static constexpr int UsualPieceMs = 20;

    // device: a source of the server, such as "speaker_a.monitor". Two channels without a map.
    // pieceMs: how late a sample is told at most. Short pieces cost the machine time.
    explicit SoundRecording(const QString& device, const QString& channelMap = {},
                            int pieceMs = UsualPieceMs);
    ~SoundRecording();

    bool waitForStart(); // until the first sample
    // Everything so far, of one channel or the mean of all channels. The mean is computed here,
    // because servers mix channels in different ways.
    std::vector<float> samples(int channel) const;
    std::vector<float> samples() const;
    // Amplitude of the loudest sample, beginning at index from.
    float peak(std::size_t from = 0) const;
    double seconds() const; // so far
    // When the first sample was recorded, to within one block of the server.
    std::chrono::steady_clock::time_point start() const { return m_start; }
    void forget(); // drops everything so far
    void stop();

private:
    void take();

    SoundTool m_recorder;
    int m_channels;
    QByteArray m_data;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::time_point::max();
};

// Plays samples on a device, beginning with its construction.
class SoundSource
{
public:
    SoundSource(const QString& device, const std::vector<float>& samples);

    bool waitForEnd();

private:
    int m_lengthMs;
    SoundTool m_player;
};

// Decodes a sound file of any format. Empty, with a warning, if it can't be read.
std::vector<float> soundFile(const QString& path);
// A synthetic voice that says the text.
std::vector<float> speech(const QString& text);

} // namespace TestSupport
