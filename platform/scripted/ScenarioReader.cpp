// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScenarioReader.h"

#include "platform/backend/MachineFacts.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QStandardPaths>
#include <algorithm>

namespace Platform {

namespace {

constexpr int MaxDevices = 1000;
constexpr int MaxElements = 10000; // of a timeline, a series, a curve
constexpr int MaxIdLength = 1000;
constexpr int MaxTextLength = 100000;
constexpr int MaxPictureSide = 8192;
constexpr int MaxFramesPerSecond = 240;
constexpr int MaxTimeMs = 24 * 60 * 60 * 1000;
constexpr int MaxSoundMs = 10 * 60 * 1000;
constexpr int MaxDelayMs = 60 * 1000;
constexpr int MaxProbes = 1000 * 1000;
constexpr int UsualProbes = 50;
constexpr int MaxPercent = 100;
constexpr qint64 MaxBytes = qint64(1) << 53;

const QStringList Kinds = {QStringLiteral("camera"), QStringLiteral("microphone"),
                           QStringLiteral("speaker")};
constexpr std::array<const char*, 3> ListKeys = {"cameras", "microphones", "speakers"};

// In the order of DeviceState, from Denied on.
const QStringList States = {QStringLiteral("denied"), QStringLiteral("failed"),
                            QStringLiteral("busy"),   QStringLiteral("hung"),
                            QStringLiteral("silent"), QStringLiteral("ready"),
                            QStringLiteral("working")};
// In the order of ScriptedCameras::Pictures.
const QStringList Pictures = {QStringLiteral("moving"), QStringLiteral("frozen"),
                              QStringLiteral("black"), QStringLiteral("none")};
// In the order of ScriptedReports::Outcome.
const QStringList Outcomes = {QStringLiteral("accepted"), QStringLiteral("refused"),
                              QStringLiteral("unreachable")};

enum EventKind {
    Plug,
    Unplug,
    Rename,
    State,
    Choose,
    Volume,
    Picture,
    Levels,
    Network,
    Report,
    UserInfo,
    Breakdown,
    KickOut
};
// In the order of EventKind.
const QStringList Events = {
    QStringLiteral("plug"),     QStringLiteral("unplug"),   QStringLiteral("rename"),
    QStringLiteral("state"),    QStringLiteral("choose"),   QStringLiteral("volume"),
    QStringLiteral("pictures"), QStringLiteral("levels"),   QStringLiteral("network"),
    QStringLiteral("report"),   QStringLiteral("userInfo"), QStringLiteral("breakdown"),
    QStringLiteral("kickOut")};

DeviceState stateAt(int index)
{
    return static_cast<DeviceState>(static_cast<int>(DeviceState::Denied) + index);
}

DeviceState readState(JsonFields& fields)
{
    return stateAt(fields.word("state", States, States.indexOf(QStringLiteral("ready"))));
}

ScriptedDevices& devicesOf(ScriptedEngine& engine, int kind)
{
    const std::array<ScriptedDevices*, 3> all = {&engine.cameras(), &engine.microphones(),
                                                 &engine.scriptedSpeakers()};
    return *all.at(static_cast<std::size_t>(kind));
}

DeviceInfo readInfo(JsonFields& fields)
{
    const DeviceInfo info{fields.text("id", MaxIdLength), fields.text("name", MaxTextLength)};
    if (info.id.isEmpty()) {
        fields.problem().set(fields.path("id"), QStringLiteral("must not be empty"));
    }
    return info;
}

QString cacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
}

} // namespace

ScenarioReader::ScenarioReader(JsonProblem& problem) : m_problem(problem)
{
}

Scenario ScenarioReader::read(const QJsonObject& document)
{
    JsonFields root(document, {}, m_problem);
    Scenario scenario;
    scenario.description = root.text("description", MaxTextLength, {});
    scenario.setup.push_back(readFacts(root));
    scenario.setup.push_back(readSounds(root));
    for (const Kind kind : {Camera, Microphone, Speaker}) {
        readDevices(root, kind, scenario);
    }
    const ScriptedNetwork::Series series = readNetwork(root);
    scenario.setup.push_back(
        [series](ScriptedEngine& engine) { engine.network().setSeries(series); });
    const auto outcome = static_cast<ScriptedReports::Outcome>(root.word("report", Outcomes, 0));
    scenario.setup.push_back(
        [outcome](ScriptedEngine& engine) { engine.reports().setOutcome(outcome); });
    readTimeline(root, scenario);
    scenario.setup.push_back(readCurrent(root));
    root.rejectOthers();
    return scenario;
}

Scenario::Action ScenarioReader::readFacts(JsonFields& root)
{
    ScriptedFacts::Values values;
    JsonFields account = root.object("account");
    values.accountName = account.text("name", MaxTextLength, {});
    values.accountFallbackName = account.text("fallbackName", MaxTextLength, {});
    values.nickName = account.text("nickname", MaxTextLength, {});
    account.rejectOthers();

    JsonFields machine = root.object("machine");
    const bool isReal = machine.flag("real", false);
    values.processorName = machine.text("processor", MaxTextLength,
                                        isReal ? MachineFacts::processorName() : QString());
    values.cacheVolumeAvailableBytes = machine.number(
        "cacheBytes", -1, MaxBytes, isReal ? MachineFacts::availableBytes(cacheFolder()) : -1);
    values.clientAddress = machine.text("clientAddress", MaxTextLength, {});
    JsonFields system = machine.object("operatingSystem");
    values.operatingSystem = QStringList{system.text("name", MaxTextLength, {}),
                                         system.text("version", MaxTextLength, {}),
                                         system.text("architecture", MaxTextLength, {})};
    values.operatingSystem.removeAll(QString());
    if (isReal && values.operatingSystem.isEmpty()) {
        values.operatingSystem = MachineFacts::operatingSystem();
    }
    system.rejectOthers();
    machine.rejectOthers();

    JsonFields server = root.object("server");
    values.serverName = server.text("name", MaxTextLength, {});
    values.cdnFirstPart = server.text("cdnFirstPart", MaxTextLength, {});
    values.cdnSecondPart = server.text("cdnSecondPart", MaxTextLength, {});
    server.rejectOthers();
    return [values](ScriptedEngine& engine) { engine.facts().setValues(values); };
}

Scenario::Action ScenarioReader::readSounds(JsonFields& root)
{
    JsonFields sounds = root.object("sounds");
    const bool playerFails = sounds.flag("playerFails", false);
    JsonFields lengths = sounds.object("lengthsMs");
    QMap<QString, int> lengthOf;
    const QStringList files = lengths.rest().keys();
    for (const QString& file : files) {
        lengthOf.insert(file,
                        static_cast<int>(lengths.number(file.toUtf8().constData(), 0, MaxSoundMs)));
    }
    sounds.rejectOthers();
    return [playerFails, lengthOf](ScriptedEngine& engine) {
        engine.scriptedSpeakers().setPlayerFails(playerFails);
        for (auto it = lengthOf.cbegin(); it != lengthOf.cend(); ++it) {
            engine.scriptedSpeakers().setSoundLength(it.key(), it.value());
        }
    };
}

// The choice of the start; without one the first device of each kind is the chosen one.
Scenario::Action ScenarioReader::readCurrent(JsonFields& root)
{
    JsonFields current = root.object("current");
    std::vector<std::pair<Kind, QString>> choices;
    for (const Kind kind : {Camera, Microphone, Speaker}) {
        const QByteArray key = Kinds.at(kind).toUtf8();
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

void ScenarioReader::readDevices(JsonFields& root, Kind kind, Scenario& scenario)
{
    QSet<QString>& ids = m_ids.at(kind);
    for (JsonFields& fields : root.objects(ListKeys.at(kind), MaxDevices)) {
        const int count = ids.size();
        scenario.setup.push_back(readDevice(fields, kind));
        if (ids.size() == count) {
            m_problem.set(fields.path("id"), QStringLiteral("must be another one for each device"));
        }
        fields.rejectOthers();
    }
}

void ScenarioReader::readTimeline(JsonFields& root, Scenario& scenario)
{
    std::vector<JsonFields> events = root.objects("timeline", MaxElements);
    for (const JsonFields& fields : events) {
        noteLaterDevice(fields.rest());
    }
    for (JsonFields& fields : events) {
        const auto atMs = static_cast<int>(fields.number("atMs", 0, MaxTimeMs));
        scenario.timeline.push_back({atMs, readEvent(fields)});
        fields.rejectOthers();
    }
    std::stable_sort(
        scenario.timeline.begin(), scenario.timeline.end(),
        [](const Scenario::Event& a, const Scenario::Event& b) { return a.atMs < b.atMs; });
}

// The file's order isn't the order of time: an event may name a device that the file plugs in
// below.
void ScenarioReader::noteLaterDevice(const QJsonObject& event)
{
    const int kind = Kinds.indexOf(event.value(QLatin1String("kind")).toString());
    if (kind >= 0 && event.value(QLatin1String("event")).toString() == Events.at(Plug)) {
        m_ids.at(static_cast<std::size_t>(kind))
            .insert(event.value(QLatin1String("id")).toString());
    }
}

Scenario::Action ScenarioReader::readDevice(JsonFields& fields, Kind kind)
{
    const DeviceInfo info = readInfo(fields);
    const DeviceState state = readState(fields);
    m_ids.at(kind).insert(info.id);
    Scenario::Action traits;
    switch (kind) {
    case Camera:
        traits = readCamera(fields);
        break;
    case Microphone:
        traits = readMicrophone(fields);
        break;
    case Speaker:
        traits = readSpeaker(fields);
        break;
    }
    return [kind, info, state, traits](ScriptedEngine& engine) {
        traits(engine);
        devicesOf(engine, kind).plug(info, state);
    };
}

Scenario::Action ScenarioReader::readCamera(JsonFields& fields)
{
    ScriptedCameras::Feed feed;
    feed.pictures = static_cast<ScriptedCameras::Pictures>(fields.word("pictures", Pictures, 0));
    feed.size =
        QSize(static_cast<int>(fields.number("width", 1, MaxPictureSide, feed.size.width())),
              static_cast<int>(fields.number("height", 1, MaxPictureSide, feed.size.height())));
    feed.framesPerSecond = static_cast<int>(
        fields.number("framesPerSecond", 1, MaxFramesPerSecond, feed.framesPerSecond));
    const QString id = fields.text("id", MaxIdLength);
    return [id, feed](ScriptedEngine& engine) { engine.cameras().setFeed(id, feed); };
}

Scenario::Action ScenarioReader::readMicrophone(JsonFields& fields)
{
    const auto levels = readLevels(fields);
    const bool isAdjustable = fields.flag("adjustable", true);
    const auto volume =
        static_cast<int>(fields.number("volume", 0, ScriptedMicrophones::MaxVolume, MaxPercent));
    const bool isMuted = fields.flag("muted", false);
    const QString id = fields.text("id", MaxIdLength);
    return [id, levels, isAdjustable, volume, isMuted](ScriptedEngine& engine) {
        engine.microphones().setLevelCurve(id, levels);
        engine.microphones().setAdjustable(id, isAdjustable);
        engine.microphones().setVolume(id, volume);
        engine.microphones().setMuted(id, isMuted);
    };
}

Scenario::Action ScenarioReader::readSpeaker(JsonFields& fields)
{
    const auto volume = static_cast<int>(
        fields.number("volume", 0, ScriptedSpeakers::MaxVolume, ScriptedSpeakers::DefaultVolume));
    const bool isMuted = fields.flag("muted", false);
    const QString id = fields.text("id", MaxIdLength);
    return [id, volume, isMuted](ScriptedEngine& engine) {
        engine.scriptedSpeakers().setVolume(id, volume);
        engine.scriptedSpeakers().setMuted(id, isMuted);
    };
}

Scenario::Action ScenarioReader::readEvent(JsonFields& fields)
{
    const int event = fields.word("event", Events);
    return event <= Volume ? readDeviceEvent(fields, event) : readOtherEvent(fields, event);
}

Scenario::Action ScenarioReader::readDeviceEvent(JsonFields& fields, int event)
{
    const Kind kind = readKind(fields);
    if (event == Plug) {
        return readDevice(fields, kind);
    }
    if (event == Volume) {
        if (kind == Camera) {
            m_problem.set(fields.path("kind"), QStringLiteral("a camera has no volume"));
        }
        const auto percent = static_cast<int>(fields.number(
            "percent", 0,
            kind == Speaker ? ScriptedSpeakers::MaxVolume : ScriptedMicrophones::MaxVolume));
        return [kind, percent](ScriptedEngine& engine) {
            if (kind == Speaker) {
                engine.scriptedSpeakers().moveVolumeFromOutside(percent);
            } else {
                engine.microphones().moveVolumeFromOutside(static_cast<float>(percent));
            }
        };
    }
    const QString id = readKnownId(fields, "id", kind, event == Choose);
    const QString name = event == Rename ? fields.text("name", MaxTextLength) : QString();
    const DeviceState state =
        event == State ? stateAt(fields.word("state", States)) : DeviceState::Ready;
    return [event, kind, id, name, state](ScriptedEngine& engine) {
        ScriptedDevices& devices = devicesOf(engine, kind);
        switch (event) {
        case Unplug:
            devices.unplug(id);
            break;
        case Rename:
            devices.rename(id, name);
            break;
        case State:
            devices.setState(id, state);
            break;
        default:
            devices.choose(id);
            break;
        }
    };
}

Scenario::Action ScenarioReader::readOtherEvent(JsonFields& fields, int event)
{
    switch (event) {
    case Picture: {
        const QString id = readKnownId(fields, "id", Camera, false);
        const auto pictures =
            static_cast<ScriptedCameras::Pictures>(fields.word("pictures", Pictures));
        return
            [id, pictures](ScriptedEngine& engine) { engine.cameras().setPictures(id, pictures); };
    }
    case Levels: {
        const QString id = readKnownId(fields, "id", Microphone, false);
        const auto levels = readLevels(fields);
        return [id, levels](ScriptedEngine& engine) {
            engine.microphones().setLevelCurve(id, levels);
        };
    }
    case Network: {
        const auto series = readNetwork(fields);
        return [series](ScriptedEngine& engine) { engine.network().setSeries(series); };
    }
    case Report: {
        const auto outcome =
            static_cast<ScriptedReports::Outcome>(fields.word("outcome", Outcomes));
        return [outcome](ScriptedEngine& engine) { engine.reports().setOutcome(outcome); };
    }
    case UserInfo: {
        const QString name = fields.text("name", MaxTextLength, {});
        const QString nickname = fields.text("nickname", MaxTextLength, {});
        return [name, nickname](ScriptedEngine& engine) {
            engine.facts().bringUserInfo(name, nickname);
        };
    }
    case Breakdown:
        return [](ScriptedEngine& engine) { engine.facts().breakDown(); };
    default:
        return [](ScriptedEngine& engine) { engine.facts().kickOut(); };
    }
}

ScenarioReader::Kind ScenarioReader::readKind(JsonFields& fields)
{
    return static_cast<Kind>(fields.word("kind", Kinds));
}

QString ScenarioReader::readKnownId(JsonFields& fields, const char* key, Kind kind, bool allowsNone)
{
    const QString id = fields.text(key, MaxIdLength);
    const bool isNone = allowsNone && id.isEmpty();
    if (!isNone && !m_ids.at(kind).contains(id)) {
        m_problem.set(fields.path(key),
                      QStringLiteral("names no %1 of this scenario").arg(Kinds.at(kind)));
    }
    return id;
}

ScriptedNetwork::Series ScenarioReader::readNetwork(JsonFields& fields)
{
    ScriptedNetwork::Series series;
    for (JsonFields& element : fields.objects("network", MaxElements)) {
        NetworkFigures figures;
        figures.delayMs = static_cast<int>(element.number("delayMs", -1, MaxDelayMs));
        figures.lossPercent = static_cast<int>(
            element.number("lossPercent", 0, MaxPercent, figures.delayMs < 0 ? MaxPercent : 0));
        figures.jitterMs = static_cast<int>(element.number("jitterMs", 0, MaxDelayMs, 0));
        figures.sent = static_cast<int>(element.number("sent", 0, MaxProbes, UsualProbes));
        figures.answered = static_cast<int>(
            element.number("answered", 0, figures.sent,
                           figures.sent * (MaxPercent - figures.lossPercent) / MaxPercent));
        element.rejectOthers();
        series.push_back(figures);
    }
    return series;
}

ScriptedMicrophones::LevelCurve ScenarioReader::readLevels(JsonFields& fields)
{
    ScriptedMicrophones::LevelCurve curve;
    const QJsonArray points = fields.array("levels", MaxElements);
    for (int i = 0; i < points.size(); ++i) {
        const QJsonArray point = points.at(i).toArray();
        const int atMs = point.at(0).toInt(-1);
        const double level = point.at(1).toDouble(-1);
        const bool isLater = curve.empty() ? atMs == 0 : atMs > curve.back().atMs;
        if (point.size() != 2 || !isLater || atMs > MaxTimeMs || level < 0 || level > 1) {
            m_problem.set(QStringLiteral("%1[%2]").arg(fields.path("levels")).arg(i),
                          QStringLiteral("must be [milliseconds, level]: rising from 0, and a "
                                         "level from 0 to 1"));
        }
        curve.push_back({atMs, level});
    }
    return curve;
}

} // namespace Platform
