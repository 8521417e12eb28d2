// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/CameraSystem.h"

namespace Platform {

// The cameras of a system that this engine can't use cameras of.
class AbsentCameras final : public CameraSystem
{
public:
    explicit AbsentCameras(ReportSink& report) : m_report(report) {}

    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) override;

private:
    ReportSink& m_report;
};

} // namespace Platform
