// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/absent/AbsentCameras.h"

#include "platform/devices/absent/AbsentCamera.h"

namespace Platform {

std::unique_ptr<CameraBackend> AbsentCameras::createCamera(CameraBackend::Listener& /*listener*/)
{
    return std::make_unique<AbsentCamera>(m_report);
}

std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig& /*config*/,
                                                 ReportSink& report)
{
    return std::make_unique<AbsentCameras>(report);
}

} // namespace Platform
