// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/backend/JsonFields.h"
#include "platform/scripted/Scenario.h"

#include <QMap>
#include <QObject>
#include <QSet>

namespace Platform {

class ScriptedDevices;

// Reads the devices of a scenario: its lists, the choice between them, and the events that plug one
// in. Knows which ids the scenario names.
class ScenarioDeviceReader
{
    Q_GADGET

public:
    enum class Kind { Camera, Microphone, Speaker };
    Q_ENUM(Kind)

    explicit ScenarioDeviceReader(JsonProblem& problem);

    static ScriptedDevices& devicesOf(ScriptedEngine& engine, Kind kind);

    void readLists(JsonFields& root, Scenario& scenario);
    Scenario::Action readCurrent(JsonFields& root);
    Scenario::Action readDevice(JsonFields& fields, Kind kind);
    static DeviceState readState(JsonFields& fields);
    static DeviceState readState(JsonFields& fields, DeviceState fallback);
    // Reads an id. A device of that id must be in a list, or an event must plug it in.
    QString readKnownId(JsonFields& fields, const char* key, Kind kind, bool allowsNone) const;
    // Announces a device that a later event plugs in.
    void expect(Kind kind, const QString& id) { m_ids[kind].insert(id); }

private:
    void readList(JsonFields& root, Kind kind, Scenario& scenario);

    JsonProblem& m_problem;
    QMap<Kind, QSet<QString>> m_ids; // of all devices that are ever plugged in
};

} // namespace Platform
