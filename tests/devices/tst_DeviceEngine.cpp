// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/StunServer.h"
#include "platform/devices/DeviceEngine.h"
#include "tests/devices/CoturnServer.h"
#include "tests/devices/ThreadCount.h"
#include "tests/support/AtOnce.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Platform;

// The network half of the engine; the devices have tests of their own.
class tst_DeviceEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builtInResponder();
    void usualWordsForTheResponder();
    void ownServer();
    void badServer();
    void figuresGoIntoTheResults();
};

namespace {

struct Listener : NetworkProbe::Listener
{
    void networkFiguresChanged() override { ++changes; }
    int changes = 0;
};

void prepare(DeviceEngine& engine)
{
    bool isDone = false;
    engine.prepare([&isDone] { isDone = true; });
    QTRY_VERIFY(isDone);
}

} // namespace

void tst_DeviceEngine::builtInResponder()
{
    const QTemporaryDir folder;
    DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    config.builtInResponderText = QStringLiteral("This very computer");
    DeviceEngine engine(config);
    QCOMPARE(engine.settingsFolder(), folder.path());
    QCOMPARE(engine.systemFacts().serverName(), config.builtInResponderText);
    prepare(engine);
    QTRY_COMPARE(engine.systemFacts().clientAddress(), QStringLiteral("127.0.0.1"));
    QTRY_COMPARE(threadCount("StunResponder"), 0); // it went with the question

    Listener listener;
    std::unique_ptr<NetworkProbe> probe = engine.createNetworkProbe(listener);
    QTRY_COMPARE(listener.changes, 2);
    QVERIFY(probe->figures().delayMs >= 0 && probe->figures().delayMs < AtOnceMs);
    QVERIFY(probe->figures().answered > 10);
    QCOMPARE(probe->figures().problem, NetworkProblem::NoServer);
    std::unique_ptr<NetworkProbe> second = engine.createNetworkProbe(listener);
    QTRY_COMPARE(threadCount("StunProbe"), 2);
    QCOMPARE(threadCount("StunResponder"), 1);
    QElapsedTimer clock;
    clock.start();
    probe.reset();
    second.reset();
    QVERIFY(clock.elapsed() < AtOnceMs);
    QTRY_COMPARE(threadCount("StunProbe"), 0);
    QTRY_COMPARE(threadCount("StunResponder"), 0);
}

void tst_DeviceEngine::usualWordsForTheResponder()
{
    const QTemporaryDir folder;
    DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    QCOMPARE(DeviceEngine(config).systemFacts().serverName(), qtTrId("ID_Engine_BuiltInResponder"));
}

void tst_DeviceEngine::ownServer()
{
    CoturnServer coturn;
    QVERIFY(coturn.start());
    const QTemporaryDir folder;
    DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    config.server = QStringLiteral("stun:") + coturn.server().toString();
    DeviceEngine engine(config);
    QCOMPARE(engine.systemFacts().serverName(), coturn.server().toString());
    prepare(engine);
    QTRY_COMPARE(engine.systemFacts().clientAddress(), QStringLiteral("127.0.0.1"));
    Listener listener;
    const std::unique_ptr<NetworkProbe> probe = engine.createNetworkProbe(listener);
    QTRY_COMPARE(listener.changes, 1);
    QVERIFY(probe->figures().answered > 4);
    QCOMPARE(probe->figures().problem, NetworkProblem::None);
}

void tst_DeviceEngine::badServer()
{
    const QTemporaryDir folder;
    DeviceEngineConfig config;
    config.settingsFolder = folder.path();
    config.server = QStringLiteral("<b>nowhere</b>");
    QTest::ignoreMessage(QtWarningMsg, "The network is not measured: the server <b>nowhere</b> is "
                                       "not one. Give it as HOST or HOST:PORT, with or without "
                                       "stun: before it, such as stun:stun.example.org:3478");
    DeviceEngine engine(config);
    QCOMPARE(engine.systemFacts().serverName(), config.server);
    Listener listener;
    const std::unique_ptr<NetworkProbe> probe = engine.createNetworkProbe(listener);
    QTRY_COMPARE_WITH_TIMEOUT(probe->figures().lossPercent, 100, 10000);
    QCOMPARE(probe->figures().delayMs, -1);
}

void tst_DeviceEngine::figuresGoIntoTheResults()
{
    const QTemporaryDir folder;
    DeviceEngineConfig config;
    config.settingsFolder = folder.filePath(QStringLiteral("settings"));
    config.resultsPath = folder.filePath(QStringLiteral("results.json"));
    DeviceEngine engine(config);
    prepare(engine);
    QVERIFY(FileWriter::waitForWritten(5000));
    QVERIFY(!QFile::exists(config.resultsPath)); // asking for the address is no measurement
    Listener listener;
    std::unique_ptr<NetworkProbe> probe = engine.createNetworkProbe(listener);
    QTRY_COMPARE(listener.changes, 1);
    const NetworkFigures last = probe->figures();
    // Before the listener heard of them: what it makes of them finds them there.
    const QJsonObject present = engine.results();
    QCOMPARE(present["measurements"].toObject()["network"].toObject()["sent"].toInt(), last.sent);
    probe.reset();
    QVERIFY(FileWriter::waitForWritten(5000));
    QFile results(config.resultsPath);
    QVERIFY(results.open(QIODevice::ReadOnly));
    const QJsonDocument document = QJsonDocument::fromJson(results.readAll());
    const QJsonObject network = document["measurements"]["network"].toObject();
    QCOMPARE(network, (QJsonObject{{QStringLiteral("lossPercent"), last.lossPercent},
                                   {QStringLiteral("delayMs"), last.delayMs},
                                   {QStringLiteral("jitterMs"), last.jitterMs},
                                   {QStringLiteral("sent"), last.sent},
                                   {QStringLiteral("answered"), last.answered},
                                   {QStringLiteral("delay5Ms"), last.delay5Ms},
                                   {QStringLiteral("delay95Ms"), last.delay95Ms},
                                   {QStringLiteral("state"), QStringLiteral("noServer")}}));
}

QTEST_GUILESS_MAIN(tst_DeviceEngine)
#include "tst_DeviceEngine.moc"
