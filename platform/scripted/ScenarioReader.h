// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/JsonFields.h"
#include "platform/scripted/Scenario.h"
#include "platform/scripted/ScriptedMicrophones.h"
#include "platform/scripted/ScriptedNetwork.h"

#include <QSet>
#include <array>

namespace Platform {

// Makes a scenario of its JSON document.
class ScenarioReader
{
public:
    explicit ScenarioReader(JsonProblem& problem);

    Scenario read(const QJsonObject& document);

private:
    enum Kind { Camera, Microphone, Speaker };

    Scenario::Action readFacts(JsonFields& root);
    Scenario::Action readSounds(JsonFields& root);
    Scenario::Action readCurrent(JsonFields& root);
    void readDevices(JsonFields& root, Kind kind, Scenario& scenario);
    void readTimeline(JsonFields& root, Scenario& scenario);
    void noteLaterDevice(const QJsonObject& event);

    Scenario::Action readDevice(JsonFields& fields, Kind kind);
    Scenario::Action readCamera(JsonFields& fields);
    Scenario::Action readMicrophone(JsonFields& fields);
    Scenario::Action readSpeaker(JsonFields& fields);
    Scenario::Action readEvent(JsonFields& fields);
    Scenario::Action readDeviceEvent(JsonFields& fields, int event);
    Scenario::Action readOtherEvent(JsonFields& fields, int event);

    Kind readKind(JsonFields& fields);
    QString readKnownId(JsonFields& fields, const char* key, Kind kind, bool allowsNone);
    ScriptedNetwork::Series readNetwork(JsonFields& fields);
    ScriptedMicrophones::LevelCurve readLevels(JsonFields& fields);

    JsonProblem& m_problem;
    std::array<QSet<QString>, 3> m_ids; // those that are plugged in at some time, by kind
};

} // namespace Platform
