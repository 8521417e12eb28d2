// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScenarioDeviceReader.h"

namespace Platform {

// Reads the timeline of a scenario: what happens while it is played.
class ScenarioTimelineReader
{
    Q_GADGET

public:
    enum class Event {
        Plug,
        Unplug,
        Rename,
        State,
        Choose,
        Volume,
        Mute,
        Pictures,
        CameraServer,
        Levels,
        Network,
        Report,
        UserInfo,
        Breakdown,
        KickOut
    };
    Q_ENUM(Event)

    explicit ScenarioTimelineReader(ScenarioDeviceReader& devices);

    void read(JsonFields& root, Scenario& scenario);

private:
    using Kind = ScenarioDeviceReader::Kind;

    void expectDevice(const QJsonObject& event);
    Scenario::Action readEvent(JsonFields& fields);
    Scenario::Action readUnplug(JsonFields& fields) const;
    Scenario::Action readRename(JsonFields& fields) const;
    Scenario::Action readState(JsonFields& fields) const;
    Scenario::Action readChoose(JsonFields& fields) const;
    Scenario::Action readPictures(JsonFields& fields) const;
    Scenario::Action readLevels(JsonFields& fields) const;

    ScenarioDeviceReader& m_devices;
};

} // namespace Platform
