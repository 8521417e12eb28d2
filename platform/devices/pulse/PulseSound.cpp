// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseSound.h"

#include "platform/devices/pulse/PulseMicrophone.h"
#include "platform/devices/pulse/PulsePlayer.h"
#include "platform/devices/pulse/PulseSession.h"
#include "platform/devices/pulse/PulseSpeaker.h"

namespace Platform {

PulseSound::PulseSound(ReportSink& report) : m_report(report)
{
}

PulseSound::~PulseSound() = default;

std::unique_ptr<MicrophoneBackend>
PulseSound::createMicrophone(MicrophoneBackend::Listener& listener)
{
    return std::make_unique<PulseMicrophone>(session(), listener, m_report);
}

std::unique_ptr<SpeakerBackend> PulseSound::createSpeaker(SpeakerBackend::Listener& listener)
{
    return std::make_unique<PulseSpeaker>(session(), listener, m_report);
}

std::unique_ptr<PlayerBackend> PulseSound::createPlayer(const QString& path, float volume,
                                                        PlayerBackend::Listener& listener)
{
    return std::make_unique<PulsePlayer>(session(), path, volume, listener, m_report);
}

DeviceList PulseSound::speakers() const
{
    const std::shared_ptr<PulseSession> session = m_session.lock();
    return session ? session->devices().speakers.list() : DeviceList();
}

std::shared_ptr<PulseSession> PulseSound::session()
{
    std::shared_ptr<PulseSession> session = m_session.lock();
    if (!session) {
        session = std::make_shared<PulseSession>();
        m_session = session;
    }
    return session;
}

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& /*config*/,
                                               ReportSink& report)
{
    return std::make_unique<PulseSound>(report);
}

} // namespace Platform
