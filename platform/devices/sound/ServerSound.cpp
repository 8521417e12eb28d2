// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/ServerSound.h"

#include "platform/devices/sound/SoundAcousticLoop.h"
#include "platform/devices/sound/SoundMicrophone.h"
#include "platform/devices/sound/SoundPlayer.h"
#include "platform/devices/sound/SoundService.h"
#include "platform/devices/sound/SoundSpeaker.h"

namespace Platform {

ServerSound::ServerSound(ReportSink& report) : m_report(report)
{
}

ServerSound::~ServerSound() = default;

std::unique_ptr<MicrophoneBackend>
ServerSound::createMicrophone(MicrophoneBackend::Listener& listener)
{
    return std::make_unique<SoundMicrophone>(server(), listener, m_report);
}

std::unique_ptr<SpeakerBackend> ServerSound::createSpeaker(SpeakerBackend::Listener& listener)
{
    return std::make_unique<SoundSpeaker>(server(), listener, m_report);
}

std::unique_ptr<PlayerBackend> ServerSound::createPlayer(const QString& path, float volume,
                                                         PlayerBackend::Listener& listener)
{
    return std::make_unique<SoundPlayer>(server(), path, volume, listener, m_report);
}

std::unique_ptr<AcousticLoop> ServerSound::createAcousticLoop(const QString& speakerId,
                                                              const QString& microphoneId)
{
    return std::make_unique<SoundAcousticLoop>(server(), speakerId, microphoneId);
}

DeviceList ServerSound::speakers() const
{
    const std::shared_ptr<SoundService> server = m_server.lock();
    return server ? server->devices().speakers.list() : DeviceList();
}

SoundServerState ServerSound::serverState() const
{
    const std::shared_ptr<SoundService> server = m_server.lock();
    return server ? server->devices().server : SoundServerState::Starting;
}

std::shared_ptr<SoundService> ServerSound::server()
{
    std::shared_ptr<SoundService> server = m_server.lock();
    if (!server) {
        server = createServer();
        m_server = server;
    }
    return server;
}

} // namespace Platform
