// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/SoundSystem.h"

namespace Platform {

class ReportSink;
class SoundService;

// Sound by way of a sound server. Without users it has no connection, no thread and no device list.
class ServerSound : public SoundSystem
{
public:
    explicit ServerSound(ReportSink& report);
    ~ServerSound() override;

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
    virtual std::shared_ptr<SoundService> createServer() const = 0;
    std::shared_ptr<SoundService> server();

    ReportSink& m_report;
    std::weak_ptr<SoundService> m_server;
};

} // namespace Platform
