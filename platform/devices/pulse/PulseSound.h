// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/SoundSystem.h"

namespace Platform {

class PulseServer;
class ReportSink;

// The sound system of a machine with PulseAudio or PipeWire. Without users it has no connection, no
// thread and no device list.
class PulseSound final : public SoundSystem
{
public:
    explicit PulseSound(ReportSink& report);
    ~PulseSound() override;

    std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) override;
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) override;
    std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                PlayerBackend::Listener& listener) override;
    std::unique_ptr<AcousticLoop> createAcousticLoop(const QString& speakerId,
                                                     const QString& microphoneId) override;
    DeviceList speakers() const override;
    SoundServerState serverState() const override;

private:
    std::shared_ptr<PulseServer> server();

    ReportSink& m_report;
    std::weak_ptr<PulseServer> m_server;
};

} // namespace Platform
