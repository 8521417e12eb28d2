// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"

namespace Platform {

class ReportSink;

// Stands for the cameras on a system that this engine can't use cameras of. There is nothing to
// listen for.
class AbsentCamera final : public CameraBackend
{
public:
    explicit AbsentCamera(ReportSink& report);

    DeviceList devices() const override { return {}; }
    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString& /*id*/) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    DeviceState stateOf(const QString& /*id*/) const override { return DeviceState::Absent; }
    bool delivers() const override { return false; }
    CameraCause cause() const override;
    SoundServerState serverState() const override { return SoundServerState::NotBuilt; }

    void start() override;
    void stop() override;
    void setOutputSize(const QSize& /*pixels*/) override {}
    QImage latestFrame() const override { return {}; }

private:
    ReportSink& m_report;
    bool m_isStarted = false;
};

} // namespace Platform
