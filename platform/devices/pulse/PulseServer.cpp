// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseServer.h"

#include "platform/backend/DetachedThread.h"
#include "platform/devices/pulse/PulseCaptureHandle.h"
#include "platform/devices/pulse/PulsePlaybackHandle.h"

#include <chrono>
#include <utility>

namespace Platform {

namespace {

// The server makes microphones louder than their hardware does.
constexpr int MaxMicrophoneVolume = 150;
constexpr int MaxSpeakerVolume = 100;
constexpr std::chrono::milliseconds EndTimeout(1000);
constexpr std::chrono::milliseconds EndTimeoutOfUnconnected(50);

} // namespace

PulseServer::PulseServer() : m_connection(std::make_unique<PulseConnection>(publisher()))
{
}

// libpulse looks up the server's name on a thread, and waits for it at the end.
PulseServer::~PulseServer()
{
    const auto limit = devices().isConnected ? EndTimeout : EndTimeoutOfUnconnected;
    DetachedThread::runWithin(limit, [connection = m_connection.release()] { delete connection; });
}

int PulseServer::maximumVolume(SoundKind kind) const
{
    return kind == SoundKind::Speaker ? MaxSpeakerVolume : MaxMicrophoneVolume;
}

std::unique_ptr<SoundCapture> PulseServer::createCapture()
{
    return std::make_unique<PulseCaptureHandle>(*m_connection);
}

std::unique_ptr<SoundPlayback> PulseServer::createPlayback(std::shared_ptr<SoundBuffer> sound,
                                                           SoundPlayback::Finished finished)
{
    return std::make_unique<PulsePlaybackHandle>(*m_connection, std::move(sound),
                                                 std::move(finished));
}

void PulseServer::sendVolume(SoundKind kind, const QString& id, int percent, quint64 order)
{
    m_connection->run([connection = m_connection.get(), kind, id, percent, order] {
        connection->setVolume(kind, id, percent, order);
    });
}

} // namespace Platform
