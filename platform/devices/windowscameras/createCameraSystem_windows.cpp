// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/DeviceEngineConfig.h"
#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/windowscameras/WindowsCameraCapture.h"

namespace Platform {

std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig& config,
                                                 ReportSink& report)
{
    return std::make_unique<DeviceCameraSystem>(config.settingsFolder, report,
                                                windowsCameraFeedMaker());
}

} // namespace Platform
