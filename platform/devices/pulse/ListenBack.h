// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseHandles.h"
#include "platform/devices/sound/DriftControl.h"
#include "platform/devices/sound/DriftResampler.h"
#include "platform/devices/sound/FeedbackLimiter.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace Platform {

// Plays what the microphone hears on one speaker with as little delay as the server allows. Sound
// thread only. Where the speaker fails it falls silent.
//
// It has a connection of its own: PipeWire holds back what a client records for as long as anything
// else waits to be sent to that client, and a playing stream is sent a request in every round.
class ListenBack
{
public:
    ListenBack(pa_mainloop_api* api, const QString& speakerId, unsigned rate);

    void play(const float* samples, std::size_t count);
    bool hasFailed() const;

private:
    void contextStateChanged();
    void connectStream();
    void takeExcess();
    bool isSkipped(float sample);
    double storeMs() const;
    void noteUnderflow();

    QByteArray m_speakerId;
    unsigned m_rate;
    double m_samplesPerMs;
    FeedbackLimiter m_guard;
    DriftResampler m_resampler;
    DriftControl m_drift;
    std::size_t m_toSkip = 0;   // samples
    std::size_t m_patience = 0; // samples for which only silence is skipped
    std::size_t m_quiet = 0;    // samples of silence up to here
    bool m_hasStarted = false;
    std::vector<float> m_kept;
    std::vector<float> m_output;
    PulseContextHandle m_context;
    PulseStreamHandle m_stream;
};

} // namespace Platform
