// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulsePlaybackHandle.h"

#include "platform/devices/pulse/PulsePlayback.h"

#include <utility>

namespace Platform {

PulsePlaybackHandle::PulsePlaybackHandle(PulseConnection& connection,
                                         std::shared_ptr<SoundBuffer> sound, Finished finished)
    : m_connection(connection),
      m_playback(std::make_shared<PulsePlayback>(connection, std::move(sound), std::move(finished)))
{
    m_connection.run([&connection, playback = m_playback] { connection.add(playback); });
}

PulsePlaybackHandle::~PulsePlaybackHandle()
{
    m_connection.run([&connection = m_connection, playback = std::move(m_playback)] {
        playback->stop();
        connection.remove(playback);
    });
}

void PulsePlaybackHandle::playOn(const QString& speakerId)
{
    m_connection.run([playback = m_playback, speakerId] { playback->playOn(speakerId); });
}

void PulsePlaybackHandle::soundAdvanced()
{
    m_connection.run([playback = m_playback] { playback->soundAdvanced(); });
}

void PulsePlaybackHandle::stop()
{
    m_connection.run([playback = m_playback] { playback->stop(); });
}

std::chrono::steady_clock::time_point PulsePlaybackHandle::begin() const
{
    return m_playback->begin();
}

} // namespace Platform
