// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/AcousticLoop.h"
#include "platform/backend/MicrophoneBackend.h"
#include "platform/backend/PlayerBackend.h"
#include "platform/backend/SoundServerState.h"
#include "platform/backend/SpeakerBackend.h"

#include <memory>

namespace Platform {

struct DeviceEngineConfig;
class ReportSink;

// The sound system of the real engine, one per engine. It outlives all objects that it creates. GUI
// thread only.
class SoundSystem
{
public:
    virtual ~SoundSystem() = default;

    virtual std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) = 0;
    virtual std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) = 0;
    // Null if no player can be created.
    virtual std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                        PlayerBackend::Listener& listener) = 0;
    virtual std::unique_ptr<AcousticLoop> createAcousticLoop(const QString& speakerId,
                                                             const QString& microphoneId) = 0;
    virtual DeviceList speakers() const = 0;
    virtual SoundServerState serverState() const = 0;
};

// Each build has one definition, in the folder of its sound system. Measurements of the devices go
// to the report.
std::unique_ptr<SoundSystem> createSoundSystem(const DeviceEngineConfig& config,
                                               ReportSink& report);

} // namespace Platform
