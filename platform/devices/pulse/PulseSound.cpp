// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseSound.h"

#include "platform/devices/pulse/PulseAcousticLoop.h"
#include "platform/devices/pulse/PulseMicrophone.h"
#include "platform/devices/pulse/PulsePlayer.h"
#include "platform/devices/pulse/PulseServer.h"
#include "platform/devices/pulse/PulseSpeaker.h"

namespace Platform {

PulseSound::PulseSound(ReportSink& report) : m_report(report)
{
}

PulseSound::~PulseSound() = default;

std::unique_ptr<MicrophoneBackend>
PulseSound::createMicrophone(MicrophoneBackend::Listener& listener)
{
    return std::make_unique<PulseMicrophone>(server(), listener, m_report);
}

std::unique_ptr<SpeakerBackend> PulseSound::createSpeaker(SpeakerBackend::Listener& listener)
{
    return std::make_unique<PulseSpeaker>(server(), listener, m_report);
}

std::unique_ptr<PlayerBackend> PulseSound::createPlayer(const QString& path, float volume,
                                                        PlayerBackend::Listener& listener)
{
    return std::make_unique<PulsePlayer>(server(), path, volume, listener, m_report);
}

std::unique_ptr<AcousticLoop> PulseSound::createAcousticLoop(const QString& speakerId,
                                                             const QString& microphoneId)
{
    return std::make_unique<PulseAcousticLoop>(server(), speakerId, microphoneId);
}

DeviceList PulseSound::speakers() const
{
    const std::shared_ptr<PulseServer> server = m_server.lock();
    return server ? server->devices().speakers.list() : DeviceList();
}

SoundServerState PulseSound::serverState() const
{
    const std::shared_ptr<PulseServer> server = m_server.lock();
    return server ? server->devices().server : SoundServerState::Starting;
}

std::shared_ptr<PulseServer> PulseSound::server()
{
    std::shared_ptr<PulseServer> server = m_server.lock();
    if (!server) {
        server = std::make_shared<PulseServer>();
        m_server = server;
    }
    return server;
}

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& /*config*/,
                                               ReportSink& report)
{
    return std::make_unique<PulseSound>(report);
}

} // namespace Platform
