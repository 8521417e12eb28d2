// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/DeviceEngineConfig.h"
#include "platform/devices/pipewire/PipeWireCameraSystem.h"
#ifdef ENVCHECK_HAS_V4L2
#include "platform/devices/v4l2/V4l2Parts.h"
#endif

namespace Platform {

std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig& config,
                                                 ReportSink& report)
{
    FeedMaker makeSecondFeed;
#ifdef ENVCHECK_HAS_V4L2
    makeSecondFeed = v4l2FeedMaker();
#endif
    return std::make_unique<PipeWireCameraSystem>(config.settingsFolder, report, makeSecondFeed);
}

} // namespace Platform
