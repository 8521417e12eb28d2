// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/ListenBack.h"
#include "platform/devices/pulse/PulseConnection.h"
#include "platform/devices/sound/LevelMeter.h"

#include <functional>
#include <optional>

namespace Platform {

class MicrophoneAnalysis;

// Hears one microphone: measures its level, and plays it back where that is wanted. Sound thread
// only, but for its making.
class PulseCapture final : public PulseConnection::Client
{
public:
    static constexpr unsigned Rate = 48000;
    // Without a sample for so long, the level drops to nothing.
    static constexpr unsigned StallMs = 150;

    // What comes of an opening, told on the sound thread.
    struct Events
    {
        std::function<void(double)> levelMeasured;
        std::function<void()> soundHeard;          // once
        std::function<void(bool)> deliveryChanged; // samples come, or have stopped coming
        std::function<void()> failed;              // the stream broke
    };

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
    void take(const float* frames, std::size_t count);
    void measure(const float* frames, std::size_t count);
    void resetMeters();
    void listenBack(const float* samples, std::size_t count);
    void publish(double level);
    void watch();
    void setDelivering(bool delivers);
    void fail();

    PulseConnection& m_connection;
    Events m_events;
    std::shared_ptr<MicrophoneAnalysis> m_analysis;
    QString m_microphoneId;
    QString m_speakerId;
    PulseStreamHandle m_stream;
    std::unique_ptr<ListenBack> m_listenBack;
    std::vector<LevelMeter> m_meters; // one for each channel; none while it is closed
    pa_time_event* m_watch = nullptr;
    pa_usec_t m_listenBackStart = 0;
    pa_usec_t m_lastSample = 0;
    pa_usec_t m_lastLevelTime = 0;
    double m_lastLevel = 0.0;
    bool m_isHeard = false;
    std::optional<bool> m_delivers; // not known yet
    std::vector<float> m_frames;
    std::vector<float> m_mono;
};

} // namespace Platform
