// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseConnection.h"
#include "platform/devices/sound/SoundService.h"

namespace Platform {

// PulseAudio, or PipeWire in its place. GUI thread only.
class PulseServer final : public SoundService
{
    Q_OBJECT
    Q_DISABLE_COPY(PulseServer)

public:
    PulseServer();
    ~PulseServer() override;

    int maximumVolume(SoundKind kind) const override;
    std::unique_ptr<SoundCapture> createCapture() override;
    std::unique_ptr<SoundPlayback> createPlayback(std::shared_ptr<SoundBuffer> sound,
                                                  SoundPlayback::Finished finished) override;

private:
    void sendVolume(SoundKind kind, const QString& id, int percent, quint64 order) override;

    std::unique_ptr<PulseConnection> m_connection;
};

} // namespace Platform
