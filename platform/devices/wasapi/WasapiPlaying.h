// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundPlayback.h"
#include "platform/devices/wasapi/WasapiOpening.h"

#include <QString>
#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace Platform {

class SoundBuffer;

// One sound from its beginning to its end, with a thread of its own. No call waits.
class WasapiPlaying
{
public:
    WasapiPlaying(std::shared_ptr<SoundBuffer> sound, SoundPlayback::Finished finished);
    WasapiPlaying(const WasapiPlaying&) = delete;
    WasapiPlaying& operator=(const WasapiPlaying&) = delete;

    // Whoever runs it owns it. Returns when the sound is over, or after stop().
    void run();

    void playOn(const QString& speakerId);
    void soundAdvanced() { m_wake->set(); }
    void stop();
    std::chrono::steady_clock::time_point begin() const { return m_begin; }

private:
    bool takeOrders(); // false if it is to stop
    bool step();       // false if the sound is over
    void leaveSpeaker();
    void openSpeaker();
    bool takeSpeaker();
    bool feed();
    HRESULT writeSound(unsigned free);
    HRESULT writeSilence(unsigned free);
    bool finish(HRESULT error);
    bool finish(std::optional<DeviceState> failure);

    const std::shared_ptr<SoundBuffer> m_sound;
    const SoundPlayback::Finished m_finished;
    const std::shared_ptr<WakeEvent> m_wake = std::make_shared<WakeEvent>();

    std::mutex m_mutex;
    QString m_wantedSpeaker; // guarded by m_mutex
    bool m_isStopped = false;

    QString m_speakerId;
    WasapiOpening m_opening;
    bool m_isOpening = false;
    std::unique_ptr<WasapiStream> m_stream;
    unsigned m_channels = 0;
    std::size_t m_written = 0; // samples of the sound
    unsigned m_silence = 0;    // frames after its end
    std::vector<float> m_piece;
    std::atomic<std::chrono::steady_clock::time_point> m_begin{};
};

} // namespace Platform
