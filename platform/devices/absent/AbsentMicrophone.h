// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/MicrophoneBackend.h"

namespace Platform {

class ReportSink;

// Stands for the microphones on a system that this engine can't use sound of. There is nothing to
// listen for.
class AbsentMicrophone final : public MicrophoneBackend
{
public:
    explicit AbsentMicrophone(ReportSink& report) : m_report(report) {}

    DeviceList devices() const override { return {}; }
    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString& /*id*/) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    DeviceState stateOf(const QString& /*id*/) const override { return DeviceState::Absent; }
    bool hasHeardSound() const override { return false; }

    void open() override;
    void close() override {}
    void setListening(bool /*on*/) override {}

    bool isVolumeAdjustable() const override { return false; }
    int volume() const override { return 0; }
    int volumeOf(const QString& /*id*/) const override { return 0; }
    void setVolume(int /*percent*/) override {}

private:
    ReportSink& m_report;
};

} // namespace Platform
