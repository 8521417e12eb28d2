// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseConnection.h"

#include <functional>

namespace Platform {

class SoundBuffer;

// Plays a sound buffer on one playback device, and on no other. Sound thread only, but for its
// making.
class PulsePlayback final : public PulseConnection::Client
{
public:
    // finished is called once, unless it is stopped before: true at the end of the sound, false
    // where the device or the server failed.
    using Finished = std::function<void(bool)>;

    PulsePlayback(PulseConnection& connection, std::shared_ptr<SoundBuffer> sound,
                  Finished finished);
    ~PulsePlayback() override;

    void playOn(const QString& speakerId); // goes on there, if it plays elsewhere
    void soundAdvanced();
    void stop();
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
    std::size_t m_start = 0;   // where in the sound the stream began
    std::size_t m_written = 0; // up to where it has got
    bool m_isDraining = false;
    bool m_isOver = false;
};

} // namespace Platform
