// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <chrono>
#include <vector>

namespace TestSupport {

// What comes out of a playback device, or into a microphone, from its making on.
class SoundRecording
{
public:
    static constexpr int Rate = 48000;

    // device is a source of the server, such as "speaker_a.monitor"; without a map there are two
    // channels.
    explicit SoundRecording(const QString& device, const QString& channelMap = {});
    ~SoundRecording();

    bool waitForStart(); // until the first sample
    // So far; of one channel, or the mean of all. Servers don't agree on what a mean is.
    std::vector<float> samples(int channel) const;
    std::vector<float> samples() const;
    // The loudest sample from the given one on.
    float peak(std::size_t from = 0) const;
    double seconds() const; // so far
    // When its first sample was heard, to within a block of the server.
    std::chrono::steady_clock::time_point start() const { return m_start; }
    void forget(); // what it has so far
    void stop();

private:
    void take();

    QProcess m_process;
    int m_channels;
    QByteArray m_data;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::time_point::max();
};

// Plays samples on a device, beginning at once.
class SoundSource
{
public:
    SoundSource(const QString& device, const std::vector<float>& samples);
    ~SoundSource();

    bool waitForEnd();

private:
    int m_lengthMs;
    QProcess m_process;
};

// What is in a sound file of any format; nothing, with a warning, where it can't be read.
std::vector<float> soundFile(const QString& path);
// A voice that says it.
std::vector<float> speech(const QString& text);
std::vector<float> silence(double seconds);
std::vector<float> tone(double seconds, double frequency, double decibels);
double decibels(double amplitude);
double rms(const std::vector<float>& samples, std::size_t from, std::size_t count);
// How alike (0 to 1) the part of a recording from its first sound on and a sound are, at the best
// of the delays near by.
double correlation(const std::vector<float>& recording, const std::vector<float>& sound);
// The same for how loud they are from moment to moment, anywhere in the recording: a sound that was
// stretched a little on its way stays the same to the ear.
double loudnessCorrelation(const std::vector<float>& recording, const std::vector<float>& sound);
// Where the first sample louder than the threshold is; the size where none is.
std::size_t firstAbove(const std::vector<float>& samples, float threshold, std::size_t from = 0);

} // namespace TestSupport
