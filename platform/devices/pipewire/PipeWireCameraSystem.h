// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/CameraSystem.h"
#include "platform/devices/camera/CameraFeed.h"

#include <memory>

namespace Platform {

class PipeWireThread;
class ReportSink;

// The cameras of the user's PipeWire server. There is a thread and a connection only while there
// is a camera. GUI thread only.
class PipeWireCameraSystem final : public CameraSystem
{
public:
    // Where no server answers, the second feed is used, if there is one.
    PipeWireCameraSystem(const QString& settingsFolder, ReportSink& report,
                         FeedMaker makeSecondFeed = nullptr);
    ~PipeWireCameraSystem() override; // waits for the threads to end, a second at most
    PipeWireCameraSystem(const PipeWireCameraSystem&) = delete;
    PipeWireCameraSystem& operator=(const PipeWireCameraSystem&) = delete;

    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) override;

private:
    std::shared_ptr<PipeWireThread> sharedThread();

    SettingsStore m_settings;
    ReportSink& m_report;
    std::weak_ptr<PipeWireThread> m_thread;
    FeedMaker m_makeSecondFeed;
    std::shared_ptr<EndingThreads> m_ending;
};

} // namespace Platform
