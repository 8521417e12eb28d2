// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseConnection.h"
#include "platform/devices/sound/SoundPlayback.h"

#include <atomic>
#include <chrono>

namespace Platform {

class SoundBuffer;

// Plays a sound buffer on one speaker, and on no other. Sound thread only, except for the
// constructor.
class PulsePlayback final : public PulseConnection::Client
{
public:
    using Finished = SoundPlayback::Finished;

    PulsePlayback(PulseConnection& connection, std::shared_ptr<SoundBuffer> sound,
                  Finished finished);
    ~PulsePlayback() override;

    void playOn(const QString& speakerId); // moves there if it is playing already
    void soundAdvanced();
    void stop();
    // When the first sample was handed to the server; long ago if none was. From any thread.
    std::chrono::steady_clock::time_point begin() const { return m_begin; }
    void connectionLost() override;

private:
    void openStream();
    void streamStateChanged();
    void feed();
    void finish(bool isGood);

    PulseConnection& m_connection;
    std::shared_ptr<SoundBuffer> m_sound;
    Finished m_finished;
    QString m_speakerId;
    PulseStreamHandle m_stream;
    std::size_t m_start = 0;   // position in the sound at which the stream began
    std::size_t m_written = 0; // position up to which it was written
    std::atomic<std::chrono::steady_clock::time_point> m_begin{};
    bool m_isDraining = false;
    bool m_isOver = false;
};

} // namespace Platform
