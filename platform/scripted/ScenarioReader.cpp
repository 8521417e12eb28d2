// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScenarioReader.h"

#include "platform/backend/MachineFacts.h"
#include "platform/scripted/ScenarioDeviceReader.h"
#include "platform/scripted/ScenarioTimelineReader.h"
#include "platform/scripted/ScenarioValues.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QStandardPaths>

namespace Platform {

using namespace ScenarioValues;

namespace {

constexpr int MaxSoundMs = 10 * 60 * 1000;
constexpr qint64 MaxBytes = qint64(1) << 53;

QString cacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
}

Scenario::Action readFacts(JsonFields& root)
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

Scenario::Action readSounds(JsonFields& root)
{
    JsonFields sounds = root.object("sounds");
    const bool playerFails = sounds.flag("playerFails", false);
    JsonFields lengths = sounds.object("lengthsMs");
    QMap<QString, int> lengthOf;
    const QStringList files = lengths.rest().keys();
    for (const QString& file : files) {
        lengthOf.insert(file, integer(lengths, file.toUtf8().constData(), 0, MaxSoundMs));
    }
    sounds.rejectOthers();
    return [playerFails, lengthOf](ScriptedEngine& engine) {
        engine.scriptedSpeakers().setPlayerFails(playerFails);
        for (auto it = lengthOf.cbegin(); it != lengthOf.cend(); ++it) {
            engine.scriptedSpeakers().setSoundLength(it.key(), it.value());
        }
    };
}

// Without the field a loop isn't tried.
void readLoop(JsonFields& root, Scenario& scenario)
{
    constexpr int MaxDelayMs = 2000;
    constexpr int QuietestDb = -200;
    if (!root.contains("loop")) {
        return;
    }
    using Result = LoopOutcome::Result;
    JsonFields loop = root.object("loop");
    LoopOutcome outcome;
    outcome.result = loop.flag("heard", true) ? Result::Heard : Result::NotHeard;
    outcome.delayMs = integer(loop, "delayMs", 0, MaxDelayMs, 100);
    outcome.levelDb = integer(loop, "levelDb", QuietestDb, 0, -30);
    loop.rejectOthers();
    scenario.setup.push_back([outcome](ScriptedEngine& engine) { engine.setLoop(outcome); });
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
    ScenarioDeviceReader devices(m_problem);
    devices.readLists(root, scenario);
    readLoop(root, scenario);
    const ScriptedNetwork::Series series = readNetwork(root);
    scenario.setup.push_back(
        [series](ScriptedEngine& engine) { engine.network().setSeries(series); });
    const auto outcome = root.word("report", ScriptedReports::Outcome::Accepted);
    scenario.setup.push_back(
        [outcome](ScriptedEngine& engine) { engine.reports().setOutcome(outcome); });
    ScenarioTimelineReader(devices).read(root, scenario);
    scenario.setup.push_back(devices.readCurrent(root));
    root.rejectOthers();
    return scenario;
}

} // namespace Platform
