// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScenarioDeviceReader.h"

#include "platform/scripted/ScenarioValues.h"
#include "platform/scripted/ScriptedEngine.h"

#include <array>

namespace Platform {

using namespace ScenarioValues;

namespace {

using Kind = ScenarioDeviceReader::Kind;

constexpr int MaxDevices = 1000;
constexpr int MaxPictureSide = 8192;
constexpr int MaxFramesPerSecond = 240;
constexpr int MaxStartMs = 60 * 1000;
constexpr std::array<Kind, 3> Kinds = {Kind::Camera, Kind::Microphone, Kind::Speaker};

// Absent and Off follow from "unplug" and "choose"; no scenario sets them.
QStringList stateWords()
{
    QStringList words = EnumWords::all<DeviceState>();
    words.removeOne(EnumWords::word(DeviceState::Absent));
    words.removeOne(EnumWords::word(DeviceState::Off));
    return words;
}

DeviceInfo readInfo(JsonFields& fields)
{
    const DeviceInfo info{fields.text("id", MaxIdLength), fields.text("name", MaxTextLength)};
    if (info.id.isEmpty()) {
        fields.problem().set(fields.path("id"), qtTrId("ID_Engine_Json_Empty"));
    }
    return info;
}

Scenario::Action readCamera(JsonFields& fields)
{
    ScriptedCameras::Feed feed;
    feed.pictures = fields.word("pictures", feed.pictures);
    feed.size = QSize(integer(fields, "width", 1, MaxPictureSide, feed.size.width()),
                      integer(fields, "height", 1, MaxPictureSide, feed.size.height()));
    feed.framesPerSecond =
        integer(fields, "framesPerSecond", 1, MaxFramesPerSecond, feed.framesPerSecond);
    feed.startMs = integer(fields, "startMs", 0, MaxStartMs, feed.startMs);
    feed.program = fields.text("program", MaxTextLength, {});
    const QString id = fields.text("id", MaxIdLength);
    return [id, feed](ScriptedEngine& engine) { engine.cameras().setFeed(id, feed); };
}

QJsonObject readSound(JsonFields& fields)
{
    constexpr int QuietestDb = -200;
    const std::pair<const char*, const char*> shares[] = {{"clippedPercent", "clippedShare"},
                                                          {"humPercent", "humShare"}};
    QJsonObject figures;
    JsonFields sound = fields.object("sound");
    for (const char* key : {"peakDb", "noiseFloorDb"}) {
        if (sound.contains(key)) {
            figures.insert(QLatin1String(key), integer(sound, key, QuietestDb, 0, 0));
        }
    }
    for (const auto& [key, figure] : shares) {
        if (sound.contains(key)) {
            figures.insert(QLatin1String(figure),
                           integer(sound, key, 0, MaxPercent, 0) / double(MaxPercent));
        }
    }
    sound.rejectOthers();
    return figures;
}

Scenario::Action readMicrophone(JsonFields& fields)
{
    const auto levels = readLevels(fields);
    const bool isAdjustable = fields.flag("adjustable", true);
    const int volume = integer(fields, "volume", 0, ScriptedMicrophones::MaxVolume, MaxPercent);
    const bool isMuted = fields.flag("muted", false);
    const QJsonObject sound = readSound(fields);
    const QString id = fields.text("id", MaxIdLength);
    return [id, levels, isAdjustable, volume, isMuted, sound](ScriptedEngine& engine) {
        engine.microphones().setLevelCurve(id, levels);
        engine.microphones().setAdjustable(id, isAdjustable);
        engine.microphones().setVolume(id, volume);
        engine.microphones().setMuted(id, isMuted);
        engine.microphones().setSound(id, sound);
    };
}

Scenario::Action readSpeaker(JsonFields& fields)
{
    const int volume =
        integer(fields, "volume", 0, ScriptedSpeakers::MaxVolume, ScriptedSpeakers::DefaultVolume);
    const bool isMuted = fields.flag("muted", false);
    const QString id = fields.text("id", MaxIdLength);
    return [id, volume, isMuted](ScriptedEngine& engine) {
        engine.scriptedSpeakers().setVolume(id, volume);
        engine.scriptedSpeakers().setMuted(id, isMuted);
    };
}

Scenario::Action readTraits(JsonFields& fields, Kind kind)
{
    switch (kind) {
    case Kind::Camera:
        return readCamera(fields);
    case Kind::Microphone:
        return readMicrophone(fields);
    case Kind::Speaker:
        return readSpeaker(fields);
    }
    return {};
}

} // namespace

ScenarioDeviceReader::ScenarioDeviceReader(JsonProblem& problem) : m_problem(problem)
{
}

ScriptedDevices& ScenarioDeviceReader::devicesOf(ScriptedEngine& engine, Kind kind)
{
    switch (kind) {
    case Kind::Camera:
        return engine.cameras();
    case Kind::Microphone:
        return engine.microphones();
    case Kind::Speaker:
        break;
    }
    return engine.scriptedSpeakers();
}

void ScenarioDeviceReader::readLists(JsonFields& root, Scenario& scenario)
{
    for (const Kind kind : Kinds) {
        readList(root, kind, scenario);
    }
}

Scenario::Action ScenarioDeviceReader::readCurrent(JsonFields& root)
{
    JsonFields current = root.object("current");
    std::vector<std::pair<Kind, QString>> choices;
    for (const Kind kind : Kinds) {
        const QByteArray key = EnumWords::word(kind).toLatin1();
        if (current.contains(key.constData())) {
            choices.emplace_back(kind, readKnownId(current, key.constData(), kind, true));
        }
    }
    current.rejectOthers();
    return [choices](ScriptedEngine& engine) {
        for (const auto& [kind, id] : choices) {
            devicesOf(engine, kind).choose(id);
        }
    };
}

Scenario::Action ScenarioDeviceReader::readDevice(JsonFields& fields, Kind kind)
{
    const DeviceInfo info = readInfo(fields);
    const DeviceState state = readState(fields, DeviceState::Ready);
    m_ids[kind].insert(info.id);
    if (m_ids[kind].size() > MaxDevices) {
        fields.problem().set(fields.path("id"),
                             qtTrId("ID_Engine_Scenario_TooManyDevices").arg(MaxDevices));
    }
    const Scenario::Action setTraits = readTraits(fields, kind);
    return [kind, info, state, setTraits](ScriptedEngine& engine) {
        setTraits(engine);
        devicesOf(engine, kind).plug(info, state);
    };
}

DeviceState ScenarioDeviceReader::readState(JsonFields& fields)
{
    return *EnumWords::value<DeviceState>(fields.word("state", stateWords()));
}

DeviceState ScenarioDeviceReader::readState(JsonFields& fields, DeviceState fallback)
{
    return *EnumWords::value<DeviceState>(
        fields.word("state", stateWords(), EnumWords::word(fallback)));
}

QString ScenarioDeviceReader::readKnownId(JsonFields& fields, const char* key, Kind kind,
                                          bool allowsNone) const
{
    const QString id = fields.text(key, MaxIdLength);
    const bool isNone = allowsNone && id.isEmpty();
    if (!isNone && !m_ids.value(kind).contains(id)) {
        m_problem.set(fields.path(key),
                      qtTrId("ID_Engine_Scenario_NoDevice").arg(EnumWords::word(kind)));
    }
    return id;
}

void ScenarioDeviceReader::readList(JsonFields& root, Kind kind, Scenario& scenario)
{
    const QByteArray key = EnumWords::word(kind).toLatin1() + 's'; // "cameras"
    const QSet<QString>& ids = m_ids[kind];
    for (JsonFields& fields : root.objects(key.constData(), MaxDevices)) {
        const int count = ids.size();
        scenario.setup.push_back(readDevice(fields, kind));
        if (ids.size() == count) {
            m_problem.set(fields.path("id"), qtTrId("ID_Engine_Scenario_SameId"));
        }
        fields.rejectOthers();
    }
}

} // namespace Platform
