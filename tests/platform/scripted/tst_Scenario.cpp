// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/MachineFacts.h"
#include "platform/scripted/Scenario.h"
#include "platform/scripted/ScriptedEngine.h"
#include "tests/support/ProgramTexts.h"

#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using Platform::Scenario;
using Platform::ScriptedEngine;

class tst_Scenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundlesEveryFileOfTheFolder();
    void readsEveryBundledScenario_data();
    void readsEveryBundledScenario();
    void setsUpDevices();
    void setsUpFactsNetworkAndReport();
    void takesTheMachineItRunsOn();
    void buildsOnABundledScenario();
    void playsTheTimelineInOrder();
    void namesFileLineAndField_data();
    void namesFileLineAndField();
    void complainsInTheLanguageOfTheTexts();
    void refusesWhatIsNoScenarioFile();
    void takesHostileNamesAsTheyAre();

private:
    QString write(const QByteArray& json);
    std::optional<Scenario> read(const QByteArray& json, QString* error = nullptr);

    const ProgramTexts m_texts;
    QTemporaryDir m_folder;
};

QString tst_Scenario::write(const QByteArray& json)
{
    const QString path = m_folder.filePath(QStringLiteral("some.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size()) {
        qFatal("can't write the test's scenario");
    }
    return path;
}

std::optional<Scenario> tst_Scenario::read(const QByteArray& json, QString* error)
{
    QString unused;
    return Scenario::read(write(json), error ? error : &unused);
}

void tst_Scenario::bundlesEveryFileOfTheFolder()
{
    const QDir folder(QStringLiteral(ENVCHECK_SOURCE_DIR "/platform/scripted/scenarios"));
    QStringList names;
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files, QDir::Name)) {
        names.append(file.completeBaseName());
    }
    QCOMPARE(Scenario::bundledNames(), names);
}

void tst_Scenario::readsEveryBundledScenario_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = Scenario::bundledNames();
    QVERIFY(names.size() >= 12);
    QVERIFY(names.contains(QStringLiteral("all-well")));
    for (const QString& name : names) {
        QTest::addRow("%s", qPrintable(name)) << name;
    }
}

void tst_Scenario::readsEveryBundledScenario()
{
    QFETCH(QString, name);
    QString error;
    const auto scenario = Scenario::read(name, &error);
    QVERIFY2(scenario, qPrintable(error));
    QVERIFY(!scenario->description.isEmpty());
    const ScriptedEngine engine(*scenario);
    QFile manual(QStringLiteral(ENVCHECK_SOURCE_DIR "/docs/scenario-format.md"));
    QVERIFY(manual.open(QIODevice::ReadOnly));
    QVERIFY(manual.readAll().contains('`' + name.toUtf8() + '`'));
}

void tst_Scenario::setsUpDevices()
{
    const auto scenario = read(R"({
        "cameras": [
            { "id": "c1", "name": "Twin", "state": "busy", "program": "meeting",
              "startMs": 700 },
            { "id": "c2", "name": "Twin", "pictures": "black", "width": 320, "height": 240,
              "framesPerSecond": 5 }
        ],
        "microphones": [
            { "id": "m1", "name": "Mic", "volume": 120, "adjustable": false,
              "levels": [[0, 0.2], [100, 0.4], [200, 0.0]],
              "sound": { "noiseFloorDb": -40, "humPercent": 80 } }
        ],
        "speakers": [ { "id": "s1", "name": "Speaker", "volume": 30, "state": "failed" } ],
        "current": { "camera": "c2", "speaker": "" }
    })");
    QVERIFY(scenario);
    ScriptedEngine engine(*scenario);

    const Platform::DeviceList expected = {{QStringLiteral("c1"), QStringLiteral("Twin")},
                                           {QStringLiteral("c2"), QStringLiteral("Twin (2)")}};
    QVERIFY(engine.cameras().devices() == expected);
    QCOMPARE(engine.cameras().currentId(), QStringLiteral("c2"));
    QCOMPARE(engine.cameras().currentName(), QStringLiteral("Twin (2)"));
    QCOMPARE(engine.cameras().feed(QStringLiteral("c2")).size, QSize(320, 240));
    QCOMPARE(engine.cameras().feed(QStringLiteral("c2")).framesPerSecond, 5);
    QCOMPARE(engine.cameras().feed(QStringLiteral("c1")).program, QStringLiteral("meeting"));
    QCOMPARE(engine.cameras().feed(QStringLiteral("c1")).startMs, 700);
    engine.cameras().choose(QStringLiteral("c1"));
    QVERIFY(engine.cameras().currentState() == Platform::DeviceState::Busy);

    QCOMPARE(engine.microphones().currentId(), QStringLiteral("m1"));
    QCOMPARE(engine.microphones().volume(), 120);
    QVERIFY(!engine.microphones().isAdjustable());
    QCOMPARE(engine.microphones().levelAt(0), 0.2);
    QCOMPARE(engine.microphones().levelAt(50), 0.3);
    QCOMPARE(engine.microphones().levelAt(150), 0.2);
    QCOMPARE(engine.microphones().levelAt(250), 0.3); // again from the start
    QCOMPARE(engine.microphones().sound(), (QJsonObject{{QStringLiteral("noiseFloorDb"), -40},
                                                        {QStringLiteral("humShare"), 0.8}}));

    QVERIFY(engine.scriptedSpeakers().currentState() == Platform::DeviceState::Off);
    engine.scriptedSpeakers().choose(QStringLiteral("s1"));
    QVERIFY(engine.scriptedSpeakers().currentState() == Platform::DeviceState::Failed);
    QCOMPARE(engine.scriptedSpeakers().volume(), 30);
}

void tst_Scenario::takesTheMachineItRunsOn()
{
    constexpr qint64 OtherWritersBytes = 256 * 1024 * 1024;
    const auto scenario = read(R"({
        "machine": { "real": true, "clientAddress": "192.0.2.1" } })");
    QVERIFY(scenario);
    ScriptedEngine engine(*scenario);
    const Platform::ScriptedFacts& facts = engine.facts();
    QVERIFY(!facts.processorName().isEmpty());
    QCOMPARE(facts.processorName(), Platform::MachineFacts::processorName());
    QCOMPARE(facts.operatingSystem(), Platform::MachineFacts::operatingSystem());
    const qint64 bytes = Platform::MachineFacts::availableBytes(
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    QVERIFY(bytes > 0);
    QVERIFY(std::abs(facts.cacheVolumeAvailableBytes() - bytes) < OtherWritersBytes);
    QCOMPARE(facts.clientAddress(), QStringLiteral("192.0.2.1"));

    const auto named = read(R"({
        "machine": { "real": true, "processor": "p", "cacheBytes": 5,
                     "operatingSystem": { "name": "n" } } })");
    QVERIFY(named);
    ScriptedEngine other(*named);
    QCOMPARE(other.facts().processorName(), QStringLiteral("p"));
    QCOMPARE(other.facts().cacheVolumeAvailableBytes(), Q_INT64_C(5));
    QCOMPARE(other.facts().operatingSystem(), QStringList{QStringLiteral("n")});
}

void tst_Scenario::setsUpFactsNetworkAndReport()
{
    const auto scenario = read(R"({
        "account": { "name": "a", "fallbackName": "b", "nickname": "c" },
        "machine": { "processor": "p", "cacheBytes": 5000000000, "clientAddress": "192.0.2.1",
                     "operatingSystem": { "name": "n", "version": "v", "architecture": "x" } },
        "server": { "name": "s", "cdnFirstPart": "f", "cdnSecondPart": "g" },
        "network": [ { "delayMs": 20, "lossPercent": 10 }, { "delayMs": -1 } ],
        "sounds": { "lengthsMs": { "Piano.mp3": 1200 }, "playerFails": true },
        "report": "refused"
    })");
    QVERIFY(scenario);
    ScriptedEngine engine(*scenario);
    const Platform::ScriptedFacts& facts = engine.facts();
    QCOMPARE(facts.accountName(), QStringLiteral("a"));
    QCOMPARE(facts.accountFallbackName(), QStringLiteral("b"));
    QCOMPARE(facts.nickName(), QStringLiteral("c"));
    QCOMPARE(facts.processorName(), QStringLiteral("p"));
    QCOMPARE(facts.cacheVolumeAvailableBytes(), Q_INT64_C(5000000000));
    QCOMPARE(facts.clientAddress(), QStringLiteral("192.0.2.1"));
    QCOMPARE(facts.operatingSystem().join(QLatin1Char(' ')), QStringLiteral("n v x"));
    QCOMPARE(facts.serverName(), QStringLiteral("s"));
    QCOMPARE(facts.cdnFirstPart() + facts.cdnSecondPart(), QStringLiteral("fg"));

    const auto series = engine.network().series();
    QCOMPARE(int(series.size()), 2);
    QCOMPARE(series.at(0).delayMs, 20);
    QCOMPARE(series.at(0).sent, 50);
    QCOMPARE(series.at(0).answered, 45);
    QCOMPARE(series.at(1).delayMs, -1);
    QCOMPARE(series.at(1).lossPercent, 100);

    QCOMPARE(engine.scriptedSpeakers().soundLength(QStringLiteral("Piano.mp3")), 1200);
    QVERIFY(engine.scriptedSpeakers().playerFails());
    engine.reports().postCode(QStringLiteral("name"), 3);
    QVERIFY(engine.reports().posts().constLast().outcome ==
            Platform::ScriptedReports::Outcome::Refused);
}

void tst_Scenario::buildsOnABundledScenario()
{
    const auto scenario = read(R"({ "base": "all-well", "cameras": [] })");
    QVERIFY(scenario);
    ScriptedEngine engine(*scenario);
    QVERIFY(engine.cameras().devices().empty());
    QCOMPARE(int(engine.microphones().devices().size()), 2);
}

void tst_Scenario::playsTheTimelineInOrder()
{
    const auto scenario = read(R"({
        "cameras": [ { "id": "c1", "name": "One" } ],
        "microphones": [ { "id": "m1", "name": "One" } ],
        "timeline": [
            { "atMs": 60, "event": "unplug", "kind": "camera", "id": "c1" },
            { "atMs": 55, "event": "rename", "kind": "camera", "id": "c2", "name": "Newest" },
            { "atMs": 40, "event": "plug", "kind": "camera", "id": "c2", "name": "Two" },
            { "atMs": 40, "event": "choose", "kind": "camera", "id": "c2" },
            { "atMs": 40, "event": "rename", "kind": "camera", "id": "c2", "name": "New" },
            { "atMs": 50, "event": "state", "kind": "camera", "id": "c2", "state": "hung" },
            { "atMs": 50, "event": "pictures", "id": "c2", "pictures": "none" },
            { "atMs": 50, "event": "levels", "id": "m1", "levels": [[0, 0.7]] },
            { "atMs": 50, "event": "volume", "kind": "microphone", "percent": 77 },
            { "atMs": 50, "event": "mute", "kind": "microphone", "muted": true },
            { "atMs": 50, "event": "cameraServer", "running": false },
            { "atMs": 50, "event": "cameraServer", "running": true },
            { "atMs": 50, "event": "network", "network": [ { "delayMs": 9 } ] },
            { "atMs": 50, "event": "report", "outcome": "unreachable" },
            { "atMs": 50, "event": "userInfo", "name": "late", "nickname": "L" }
        ]
    })");
    QVERIFY(scenario);
    ScriptedEngine engine(*scenario);
    QCOMPARE(int(engine.cameras().devices().size()), 1);
    QCOMPARE(engine.cameras().currentId(), QStringLiteral("c1"));
    QTRY_COMPARE(engine.cameras().currentId(), QStringLiteral("c2"));
    QTRY_VERIFY(engine.cameras().devices().size() == 1 &&
                engine.cameras().devices().front().name == QStringLiteral("Newest"));
    QVERIFY(engine.cameras().currentState() == Platform::DeviceState::Hung);
    QVERIFY(engine.cameras().feed(QStringLiteral("c2")).pictures ==
            Platform::ScriptedCameras::Pictures::None);
    QVERIFY(engine.microphones().isMuted());
    QVERIFY(!engine.cameras().isServerLost());
    engine.microphones().setMuted(engine.microphones().currentId(), false);
    QCOMPARE(engine.microphones().levelAt(1234), 0.7);
    QCOMPARE(engine.microphones().volume(), 77);
    QCOMPARE(engine.network().series().front().delayMs, 9);
    QCOMPARE(engine.facts().accountName(), QStringLiteral("late"));
}

void tst_Scenario::namesFileLineAndField_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* name, const QByteArray& json, const char* complaint) {
        QTest::addRow("%s", name) << json << QString::fromUtf8(complaint);
    };
    row("empty", "", "1: not valid JSON: ");
    row("syntax", "{\n\"cameras\": [\n}", "3: not valid JSON: ");
    row("cut off", "{\n\"description\": \"abc", "2: not valid JSON: ");
    row("not utf-8", "{\n\"description\": \"\xff\xfe\"}", "2: not valid JSON: ");
    row("a list", "[]", "1: the document must be an object");
    row("unknown field", "{\n\n\"camera\": []}", "3: camera: is not a known field here");
    row("unknown field of a device",
        "{\"cameras\": [\n{ \"id\": \"a\", \"name\": \"A\" },\n"
        "{ \"id\": \"b\", \"name\": \"B\",\n \"colour\": 1 }]}",
        "4: cameras[1].colour: is not a known field here");
    row("twice", "{\"report\": \"refused\",\n\"report\": \"accepted\"}", "2: report: occurs twice");
    row("missing", "{\"speakers\": [\n{ \"name\": \"A\" }]}", "2: speakers[0].id: is missing");
    row("empty id", "{\"speakers\": [{ \"id\": \"\", \"name\": \"A\" }]}",
        "1: speakers[0].id: must not be empty");
    row("equal ids",
        "{\"speakers\": [{ \"id\": \"a\", \"name\": \"A\" },\n{ \"id\": \"a\", \"name\": \"B\" }]}",
        "2: speakers[1].id: must be unique in its list");
    QByteArray plugs;
    for (int number = 0; number <= 1000; ++number) {
        plugs += number == 0 ? "" : ",";
        plugs += R"({"atMs": 0, "event": "plug", "kind": "camera", "name": "", "id": ")" +
                 QByteArray::number(number) + "\"}";
    }
    row("too many plugs", "{\"timeline\": [" + plugs + "]}",
        "1: timeline[0].id: more than 1000 different devices of this kind");
    const QByteArray shown = "1: " + QByteArray(199, 'k') + "\u2026: is not a known field here";
    row("long key", "{\"" + QByteArray(5000, 'k') + "\": 1}", shown.constData());
    row("no list", "{\"cameras\": {}}", "1: cameras: must be a list of at most 1000 elements");
    row("no object", "{\"cameras\": [ 7 ]}", "1: cameras[0]: must be an object");
    row("no text", "{\"cameras\": [{ \"id\": 7, \"name\": \"\" }]}",
        "1: cameras[0].id: must be a text of at most 1000 characters");
    row("negative rate",
        "{\"cameras\": [{ \"id\": \"a\", \"name\": \"A\",\n \"framesPerSecond\": -5 }]}",
        "2: cameras[0].framesPerSecond: must be a whole number from 1 to 240");
    row("huge picture", "{\"cameras\": [{ \"id\": \"a\", \"name\": \"A\",\n \"width\": 8193 }]}",
        "2: cameras[0].width: must be a whole number from 1 to 8192");
    row("not whole", "{\"network\": [{\n\"delayMs\": 1.5 }]}",
        "2: network[0].delayMs: must be a whole number from -1 to 60000");
    row("hum",
        "{\"microphones\": [{ \"id\": \"a\", \"name\": \"A\",\n\"sound\": { \"humPercent\": 101 } "
        "}]}",
        "2: microphones[0].sound.humPercent: must be a whole number from 0 to 100");
    row("loud", "{\"microphones\": [{ \"id\": \"a\", \"name\": \"A\",\n\"levels\": [[0, 1.1]] }]}",
        "2: microphones[0].levels[0]: must be [milliseconds, level]");
    row("backwards",
        "{\"microphones\": [{ \"id\": \"a\", \"name\": \"A\",\n"
        "\"levels\": [[0, 0.1],\n[5, 0.2],\n[5, 0.3]] }]}",
        "4: microphones[0].levels[2]: must be [milliseconds, level]");
    row("state", "{\"cameras\": [{ \"id\": \"a\", \"name\": \"A\",\n\"state\": \"tired\" }]}",
        "2: cameras[0].state: must be one of denied, failed, unreadable, busy, hung, silent, "
        "ready, "
        "working");
    row("flag", "{\"sounds\": {\n\"playerFails\": 1 }}",
        "2: sounds.playerFails: must be true or false");
    row("sound", "{\"sounds\": { \"lengthsMs\": {\n\"Piano.mp3\": -1 }}}",
        "2: sounds.lengthsMs.Piano.mp3: must be a whole number from 0 to 600000");
    row("answered more than sent",
        "{\"network\": [{ \"delayMs\": 1, \"sent\": 5,\n\"answered\": 6 }]}",
        "2: network[0].answered: must be a whole number from 0 to 5");
    row("loop", "{\"loop\": {\n\"delayMs\": 2001 }}",
        "2: loop.delayMs: must be a whole number from 0 to 2000");
    row("field of a loop", "{\"loop\": {\n\"level\": -3 }}",
        "2: loop.level: is not a known field here");
    row("event", "{\"timeline\": [{ \"atMs\": 1,\n\"event\": \"explode\" }]}",
        "2: timeline[0].event: must be one of plug, unplug, rename, state, choose, volume, "
        "mute, pictures, cameraServer, levels, network, report, userInfo, breakdown, kickOut");
    row("mute of a camera",
        "{\"timeline\": [{ \"atMs\": 1,\n\"event\": \"mute\", \"kind\": \"camera\" }]}",
        "2: timeline[0].kind: a camera has no volume");
    row("early event", "{\"timeline\": [{ \"atMs\": -1, \"event\": \"kickOut\" }]}",
        "1: timeline[0].atMs: must be a whole number from 0 to 86400000");
    row("unknown device",
        "{\"timeline\": [{ \"atMs\": 1, \"event\": \"unplug\", \"kind\": \"camera\",\n"
        "\"id\": \"x\" }]}",
        "2: timeline[0].id: names no camera of this scenario");
    row("unknown choice", "{\"current\": {\n\"speaker\": \"x\" }}",
        "2: current.speaker: names no speaker of this scenario");
    row("camera's volume",
        "{\"timeline\": [{ \"atMs\": 1, \"event\": \"volume\", \"kind\": \"camera\", "
        "\"percent\": 5 }]}",
        "1: timeline[0].kind: a camera has no volume");
    row("base", "{\n\"base\": \"nothing\"}", "2: base: must name a bundled scenario");
}

void tst_Scenario::namesFileLineAndField()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, complaint);
    QString error;
    QVERIFY(!read(json, &error));
    const QString expected = m_folder.filePath(QStringLiteral("some.json:")) + complaint;
    QVERIFY2(error.startsWith(expected), qPrintable(error));
    QVERIFY(!error.contains(QLatin1Char('\n')));
}

// Names of fields and words of the format stay.
void tst_Scenario::complainsInTheLanguageOfTheTexts()
{
    const ProgramTexts chinese(QStringLiteral("zh_CN"));
    const auto complaint = [this](const QByteArray& json) {
        QString error;
        read(json, &error);
        return error.section(QStringLiteral("some.json:"), 1);
    };
    QCOMPARE(complaint("{\"camera\": []}"), QStringLiteral("1: camera: 不是此处的已知字段"));
    QCOMPARE(complaint("{\"report\": \"?\"}"),
             QStringLiteral("1: report: 必须是以下之一：accepted, refused, unreachable"));
    QCOMPARE(complaint("{\"cameras\": [{ \"id\": \"a\", \"name\": \"A\", \"width\": 0 }]}"),
             QStringLiteral("1: cameras[0].width: 必须是 1 到 8192 之间的整数"));
}

void tst_Scenario::refusesWhatIsNoScenarioFile()
{
    QString error;
    const QString missing = m_folder.filePath(QStringLiteral("missing.json"));
    QVERIFY(!Scenario::read(missing, &error));
    QVERIFY2(error.startsWith(missing + QStringLiteral(": no such file")), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("all-well")), qPrintable(error));

    QVERIFY(!Scenario::read(m_folder.path(), &error));
    QVERIFY2(error.startsWith(m_folder.path() + QStringLiteral(": not a regular file")),
             qPrintable(error));

    const QByteArray smallest = "{}";
    const QString largest = write(smallest + QByteArray(1024 * 1024 - smallest.size(), ' '));
    QVERIFY2(Scenario::read(largest, &error), qPrintable(error));
    const QString large = write(QByteArray(1024 * 1024 + 1, ' '));
    QVERIFY(!Scenario::read(large, &error));
    QVERIFY2(error.startsWith(large + QStringLiteral(": larger than 1 MiB")), qPrintable(error));

#ifdef Q_OS_UNIX
    const QString fifo = m_folder.filePath(QStringLiteral("fifo"));
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    QVERIFY(!Scenario::read(fifo, &error));
    QVERIFY2(error.startsWith(fifo + QStringLiteral(": not a regular file")), qPrintable(error));
#else
    QVERIFY(!Scenario::read(QStringLiteral("CON"), &error));
    QVERIFY2(error.startsWith(QStringLiteral("CON: CON is the name of a device")),
             qPrintable(error));
#endif
}

void tst_Scenario::takesHostileNamesAsTheyAre()
{
    QString error;
    const auto scenario = Scenario::read(QStringLiteral("hostile-names"), &error);
    QVERIFY2(scenario, qPrintable(error));
    ScriptedEngine engine(*scenario);
    QSet<QString> names;
    bool hasMarkup = false;
    for (const Platform::DeviceInfo& device : engine.cameras().devices()) {
        names.insert(device.name);
        hasMarkup = hasMarkup || device.name.startsWith(QStringLiteral("<b>"));
        QVERIFY(!device.name.contains(QLatin1Char('\n')));
    }
    QVERIFY(hasMarkup);
    QCOMPARE(names.size(), int(engine.cameras().devices().size()));
    QCOMPARE(engine.facts().accountFallbackName().size(), 10000);
}

QTEST_GUILESS_MAIN(tst_Scenario)
#include "tst_Scenario.moc"
