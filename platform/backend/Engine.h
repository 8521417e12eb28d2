// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"
#include "platform/backend/CameraBackend.h"
#include "platform/backend/MicrophoneBackend.h"
#include "platform/backend/NetworkProbe.h"
#include "platform/backend/PlayerBackend.h"
#include "platform/backend/ReportSink.h"
#include "platform/backend/SoundServerState.h"
#include "platform/backend/SpeakerBackend.h"
#include "platform/backend/SystemFacts.h"

#include <chrono>
#include <memory>

namespace Platform {

// A complete back end: the façades get everything from it. One is installed in the EngineRegistry.
// GUI thread only. Destroy what it created before the engine itself.
class CLASSROOMBACKEND_EXPORT Engine
{
public:
    virtual ~Engine();

    virtual std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) = 0;
    virtual std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) = 0;
    virtual std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) = 0;
    // Null if no player can be made. volume is a factor, 0 to 1, on top of the device's volume.
    virtual std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                        PlayerBackend::Listener& listener) = 0;
    virtual std::unique_ptr<NetworkProbe> createNetworkProbe(NetworkProbe::Listener& listener) = 0;

    virtual DeviceList speakers() const = 0;
    // Why there may be no speakers and microphones. A change is told as a change of their lists.
    // Running unless an engine knows better.
    virtual SoundServerState soundServerState() const;
    virtual SystemFacts& systemFacts() = 0;
    virtual ReportSink& reportSink() = 0;
    // The folder of the settings stores. It may not exist yet.
    virtual QString settingsFolder() const = 0;

    // Whether each session of cameras and microphones chooses its device for itself, so that
    // several devices can be used side by side. Otherwise the engine has one choice for all
    // sessions.
    virtual bool hasOwnChoices() const;

    // The program ends: waits until what is on its way to a server has arrived or failed, at most
    // for the limit. Does nothing unless an engine has something to deliver.
    virtual void deliver(std::chrono::milliseconds limit);
};

} // namespace Platform
