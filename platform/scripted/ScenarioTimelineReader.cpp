// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScenarioTimelineReader.h"

#include "platform/scripted/ScenarioValues.h"
#include "platform/scripted/ScriptedEngine.h"

#include <algorithm>

namespace Platform {

using namespace ScenarioValues;

namespace {

ScenarioDeviceReader::Kind readKind(JsonFields& fields)
{
    return fields.word<ScenarioDeviceReader::Kind>("kind");
}

Scenario::Action readVolume(JsonFields& fields)
{
    using Kind = ScenarioDeviceReader::Kind;
    const Kind kind = readKind(fields);
    if (kind == Kind::Camera) {
        fields.problem().set(fields.path("kind"), qtTrId("ID_Engine_Scenario_NoVolume"));
    }
    const bool isSpeaker = kind == Kind::Speaker;
    const int percent =
        integer(fields, "percent", 0,
                isSpeaker ? ScriptedSpeakers::MaxVolume : ScriptedMicrophones::MaxVolume);
    return [isSpeaker, percent](ScriptedEngine& engine) {
        if (isSpeaker) {
            engine.scriptedSpeakers().moveVolumeFromOutside(percent);
        } else {
            engine.microphones().moveVolumeFromOutside(static_cast<float>(percent));
        }
    };
}

Scenario::Action readMute(JsonFields& fields)
{
    using Kind = ScenarioDeviceReader::Kind;
    const Kind kind = readKind(fields);
    if (kind == Kind::Camera) {
        fields.problem().set(fields.path("kind"), qtTrId("ID_Engine_Scenario_NoVolume"));
    }
    const bool isMuted = fields.flag("muted", true);
    return [kind, isMuted](ScriptedEngine& engine) {
        if (kind == Kind::Speaker) {
            engine.scriptedSpeakers().setMuted(engine.scriptedSpeakers().currentId(), isMuted);
        } else {
            engine.microphones().setMuted(engine.microphones().currentId(), isMuted);
        }
    };
}

Scenario::Action readCameraServer(JsonFields& fields)
{
    const bool isRunning = fields.flag("running", false);
    return [isRunning](ScriptedEngine& engine) { engine.cameras().setServerRunning(isRunning); };
}

Scenario::Action readSeries(JsonFields& fields)
{
    const ScriptedNetwork::Series series = readNetwork(fields);
    return [series](ScriptedEngine& engine) { engine.network().setSeries(series); };
}

Scenario::Action readReport(JsonFields& fields)
{
    const auto outcome = fields.word<ScriptedReports::Outcome>("outcome");
    return [outcome](ScriptedEngine& engine) { engine.reports().setOutcome(outcome); };
}

Scenario::Action readUserInfo(JsonFields& fields)
{
    const QString name = fields.text("name", MaxTextLength, {});
    const QString nickname = fields.text("nickname", MaxTextLength, {});
    return
        [name, nickname](ScriptedEngine& engine) { engine.facts().bringUserInfo(name, nickname); };
}

} // namespace

ScenarioTimelineReader::ScenarioTimelineReader(ScenarioDeviceReader& devices) : m_devices(devices)
{
}

void ScenarioTimelineReader::read(JsonFields& root, Scenario& scenario)
{
    std::vector<JsonFields> events = root.objects("timeline", MaxElements);
    for (const JsonFields& fields : events) {
        expectDevice(fields.rest());
    }
    for (JsonFields& fields : events) {
        const int atMs = integer(fields, "atMs", 0, MaxTimeMs);
        scenario.timeline.push_back({atMs, readEvent(fields)});
        fields.rejectOthers();
    }
    std::stable_sort(
        scenario.timeline.begin(), scenario.timeline.end(),
        [](const Scenario::Event& a, const Scenario::Event& b) { return a.atMs < b.atMs; });
}

// Events may stand in any order: one may name a device that a line further down plugs in.
void ScenarioTimelineReader::expectDevice(const QJsonObject& event)
{
    const auto kind = EnumWords::value<Kind>(event.value(QLatin1String("kind")).toString());
    if (kind && event.value(QLatin1String("event")).toString() == EnumWords::word(Event::Plug)) {
        m_devices.expect(*kind, event.value(QLatin1String("id")).toString());
    }
}

Scenario::Action ScenarioTimelineReader::readEvent(JsonFields& fields)
{
    switch (fields.word<Event>("event")) {
    case Event::Plug:
        return m_devices.readDevice(fields, readKind(fields));
    case Event::Unplug:
        return readUnplug(fields);
    case Event::Rename:
        return readRename(fields);
    case Event::State:
        return readState(fields);
    case Event::Choose:
        return readChoose(fields);
    case Event::Volume:
        return readVolume(fields);
    case Event::Mute:
        return readMute(fields);
    case Event::CameraServer:
        return readCameraServer(fields);
    case Event::Pictures:
        return readPictures(fields);
    case Event::Levels:
        return readLevels(fields);
    case Event::Network:
        return readSeries(fields);
    case Event::Report:
        return readReport(fields);
    case Event::UserInfo:
        return readUserInfo(fields);
    case Event::Breakdown:
        return [](ScriptedEngine& engine) { engine.facts().breakDown(); };
    case Event::KickOut:
        return [](ScriptedEngine& engine) { engine.facts().kickOut(); };
    }
    return {};
}

Scenario::Action ScenarioTimelineReader::readUnplug(JsonFields& fields) const
{
    const Kind kind = readKind(fields);
    const QString id = m_devices.readKnownId(fields, "id", kind, false);
    return [kind, id](ScriptedEngine& engine) {
        ScenarioDeviceReader::devicesOf(engine, kind).unplug(id);
    };
}

Scenario::Action ScenarioTimelineReader::readRename(JsonFields& fields) const
{
    const Kind kind = readKind(fields);
    const QString id = m_devices.readKnownId(fields, "id", kind, false);
    const QString name = fields.text("name", MaxTextLength);
    return [kind, id, name](ScriptedEngine& engine) {
        ScenarioDeviceReader::devicesOf(engine, kind).rename(id, name);
    };
}

Scenario::Action ScenarioTimelineReader::readState(JsonFields& fields) const
{
    const Kind kind = readKind(fields);
    const QString id = m_devices.readKnownId(fields, "id", kind, false);
    const DeviceState state = ScenarioDeviceReader::readState(fields);
    return [kind, id, state](ScriptedEngine& engine) {
        ScenarioDeviceReader::devicesOf(engine, kind).setState(id, state);
    };
}

Scenario::Action ScenarioTimelineReader::readChoose(JsonFields& fields) const
{
    const Kind kind = readKind(fields);
    const QString id = m_devices.readKnownId(fields, "id", kind, true);
    return [kind, id](ScriptedEngine& engine) {
        ScenarioDeviceReader::devicesOf(engine, kind).choose(id);
    };
}

Scenario::Action ScenarioTimelineReader::readPictures(JsonFields& fields) const
{
    const QString id = m_devices.readKnownId(fields, "id", Kind::Camera, false);
    const auto pictures = fields.word<ScriptedCameras::Pictures>("pictures");
    return [id, pictures](ScriptedEngine& engine) { engine.cameras().setPictures(id, pictures); };
}

Scenario::Action ScenarioTimelineReader::readLevels(JsonFields& fields) const
{
    const QString id = m_devices.readKnownId(fields, "id", Kind::Microphone, false);
    const ScriptedMicrophones::LevelCurve levels = ScenarioValues::readLevels(fields);
    return [id, levels](ScriptedEngine& engine) { engine.microphones().setLevelCurve(id, levels); };
}

} // namespace Platform
