// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/SoundSystem.h"

namespace Platform {

// The sound of a system that this engine can't use sound of.
class AbsentSound final : public SoundSystem
{
public:
    explicit AbsentSound(ReportSink& report) : m_report(report) {}

    std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) override;
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) override;
    std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                PlayerBackend::Listener& listener) override;
    std::unique_ptr<AcousticLoop> createAcousticLoop(const QString& speakerId,
                                                     const QString& microphoneId) override;
    DeviceList speakers() const override { return {}; }
    SoundServerState serverState() const override { return SoundServerState::NotBuilt; }

private:
    ReportSink& m_report;
};

} // namespace Platform
