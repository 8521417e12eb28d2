// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"

#include <memory>

namespace Platform {

struct DeviceEngineConfig;
class ReportSink;

// The cameras of the real engine: one per engine, made with it and destroyed after all that it
// created. GUI thread only.
class CameraSystem
{
public:
    virtual ~CameraSystem() = default;

    virtual std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) = 0;
};

// Chooses the system that this machine has. What is measured of a camera goes to the report.
std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig& config,
                                                 ReportSink& report);

} // namespace Platform
