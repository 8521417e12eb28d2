// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/absent/AbsentSound.h"

#include "platform/devices/absent/AbsentMicrophone.h"
#include "platform/devices/absent/AbsentSpeaker.h"

namespace Platform {

std::unique_ptr<MicrophoneBackend>
AbsentSound::createMicrophone(MicrophoneBackend::Listener& /*listener*/)
{
    return std::make_unique<AbsentMicrophone>(m_report);
}

std::unique_ptr<SpeakerBackend> AbsentSound::createSpeaker(SpeakerBackend::Listener& /*listener*/)
{
    return std::make_unique<AbsentSpeaker>(m_report);
}

std::unique_ptr<PlayerBackend> AbsentSound::createPlayer(const QString& /*path*/, float /*volume*/,
                                                         PlayerBackend::Listener& /*listener*/)
{
    return nullptr;
}

std::unique_ptr<AcousticLoop> AbsentSound::createAcousticLoop(const QString& /*speakerId*/,
                                                              const QString& /*microphoneId*/)
{
    return nullptr;
}

std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& /*config*/,
                                               ReportSink& report)
{
    return std::make_unique<AbsentSound>(report);
}

} // namespace Platform
