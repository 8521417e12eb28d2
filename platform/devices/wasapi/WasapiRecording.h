// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundCapture.h"
#include "platform/devices/wasapi/WasapiListenBack.h"

#include <QString>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace Platform {

// One opening of a microphone, from start() to stop(), with a thread of its own. No call waits.
class WasapiRecording
{
public:
    WasapiRecording(QString microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
                    SoundCapture::Events events);
    WasapiRecording(const WasapiRecording&) = delete;
    WasapiRecording& operator=(const WasapiRecording&) = delete;

    // Whoever runs it owns it. Returns after stop(), or when the stream broke.
    void run();

    void listenOn(const QString& speakerId);
    void stop(std::function<void()> stopped);

private:
    bool takeOrders(); // false if it is to stop
    void work();
    void openMicrophone();
    void readMicrophone();
    void take(CaptureMeter::Clock::time_point now);
    void fail(HRESULT error);

    const WasapiStream::Order m_order;
    const std::shared_ptr<MicrophoneAnalysis> m_analysis;
    const SoundCapture::Events m_events;
    const std::shared_ptr<WakeEvent> m_wake = std::make_shared<WakeEvent>();

    std::mutex m_mutex;
    QString m_wantedSpeaker;         // guarded by m_mutex
    bool m_isStopped = false;        // likewise
    bool m_isOver = false;           // likewise
    std::function<void()> m_stopped; // likewise

    WasapiOpening m_opening;
    std::unique_ptr<WasapiStream> m_stream;
    std::unique_ptr<WasapiListenBack> m_listenBack;
    std::optional<CaptureMeter> m_meter;
    bool m_hasFailed = false;
    std::vector<float> m_frames;
    std::vector<float> m_mono;
};

} // namespace Platform
