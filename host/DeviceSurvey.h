// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"
#include "platform/backend/DeviceInfo.h"
#include "platform/backend/SoundServerState.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

namespace Platform {
class Engine;
}

// The devices of an engine with their states. Opens none of them and changes no choice of the user.
// GUI thread only.
struct DeviceSurvey
{
    struct Device
    {
        Platform::DeviceInfo info;
        Platform::DeviceState state = Platform::DeviceState::Absent;
        bool isCurrent = false;
        std::optional<int> volume; // percent; cameras have none
    };
    using Devices = std::vector<Device>;

    Devices cameras;
    Devices microphones;
    Devices speakers;
    Platform::SoundServerState soundServer = Platform::SoundServerState::Running;
    Platform::SoundServerState cameraServer = Platform::SoundServerState::Running;
    bool areCamerasDenied = false;

    // Runs the event loop until the lists don't change any more, for a few seconds at most.
    static DeviceSurvey of(Platform::Engine& engine);

    QString toText() const;     // a table for a terminal
    QJsonObject toJson() const; // with the report's words
    // Why a list of devices is empty; nothing if it isn't.
    std::optional<Cause> absenceOf(CheckKind kind) const;
    bool isServerMissing() const; // so a list may lack devices
};
