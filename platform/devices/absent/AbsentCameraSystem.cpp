// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/CameraSystem.h"

namespace Platform {

namespace {

class AbsentCamera final : public CameraBackend
{
public:
    DeviceList devices() const override { return {}; }
    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString&) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    bool delivers() const override { return false; }
    void start() override {}
    void stop() override {}
    void setOutputSize(const QSize&) override {}
    QImage latestFrame() const override { return {}; }
};

class AbsentCameraSystem final : public CameraSystem
{
public:
    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener&) override
    {
        return std::make_unique<AbsentCamera>();
    }
};

} // namespace

std::unique_ptr<CameraSystem> createCameraSystem(const DeviceEngineConfig&, ReportSink&)
{
    return std::make_unique<AbsentCameraSystem>();
}

} // namespace Platform
