// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/SpeakerBackend.h"

namespace Platform {

class ReportSink;

// Stands for the speakers on a system that this engine can't use sound of. There is nothing to
// listen for.
class AbsentSpeaker final : public SpeakerBackend
{
public:
    explicit AbsentSpeaker(ReportSink& report);

    QString currentId() const override { return {}; }
    QString currentName() const override { return {}; }
    void setCurrent(const QString& /*id*/) override {}
    DeviceState state() const override { return DeviceState::Absent; }
    DeviceState stateOf(const QString& /*id*/) const override { return DeviceState::Absent; }
    int volume() const override { return 0; }
    int volumeOf(const QString& /*id*/) const override { return 0; }
    void setVolume(int /*percent*/) override {}
};

} // namespace Platform
