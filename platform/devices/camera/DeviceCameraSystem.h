// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/SettingsStore.h"
#include "platform/devices/CameraSystem.h"
#include "platform/devices/camera/CameraFeed.h"

#include <memory>

namespace Platform {

class ReportSink;

// The cameras of this machine. GUI thread only.
class DeviceCameraSystem final : public CameraSystem
{
public:
    // The second feed, if there is one, is used while the first one lists no cameras.
    DeviceCameraSystem(const QString& settingsFolder, ReportSink& report, FeedMaker makeFeed,
                       FeedMaker makeSecondFeed = nullptr);
    ~DeviceCameraSystem() override; // waits for each thread to end, a second at most
    DeviceCameraSystem(const DeviceCameraSystem&) = delete;
    DeviceCameraSystem& operator=(const DeviceCameraSystem&) = delete;

    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) override;

private:
    SettingsStore m_settings;
    ReportSink& m_report;
    FeedMaker m_makeFeed;
    std::shared_ptr<EndingThreads> m_ending;
};

} // namespace Platform
