// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/DeviceEngineConfig.h"
#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#ifdef ENVCHECK_HAS_V4L2
#include "platform/devices/v4l2/V4l2Parts.h"
#endif

namespace Platform {

// PipeWire; while no PipeWire server answers, or lists no cameras, V4L2.
std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig& config,
                                                 ReportSink& report)
{
    FeedMaker makeSecondFeed;
#ifdef ENVCHECK_HAS_V4L2
    makeSecondFeed = v4l2FeedMaker();
#endif
    return std::make_unique<DeviceCameraSystem>(config.settingsFolder, report, pipeWireFeedMaker(),
                                                makeSecondFeed);
}

} // namespace Platform
