// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/ListenBack.h"
#include "platform/devices/pulse/PulseConnection.h"
#include "platform/devices/sound/SoundCapture.h"

#include <optional>

namespace Platform {

// Records one microphone: passes its sound to the meter and, if wanted, to the speaker. Sound
// thread only, except for the constructor.
class PulseCapture final : public PulseConnection::Client
{
public:
    using Events = SoundCapture::Events;

    explicit PulseCapture(PulseConnection& connection);
    ~PulseCapture() override;

    void open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
              Events events);
    void listenOn(const QString& speakerId); // an empty id ends it
    void close();
    void connectionLost() override;

private:
    void streamStateChanged();
    void readStream();
    void take(const float* samples, std::size_t frames);
    void listenBack(CaptureMeter::Clock::time_point now);
    void watch();
    void fail();

    PulseConnection& m_connection;
    Events m_events;
    QString m_microphoneId;
    QString m_speakerId;
    PulseStreamHandle m_stream;
    std::unique_ptr<ListenBack> m_listenBack;
    CaptureMeter::Clock::time_point m_listenBackStart;
    std::optional<CaptureMeter> m_meter; // no value while closed
    pa_time_event* m_watch = nullptr;
    std::vector<float> m_frames;
    std::vector<float> m_mono;
};

} // namespace Platform
