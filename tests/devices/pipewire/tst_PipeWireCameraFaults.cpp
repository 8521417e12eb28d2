// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pipewire/PipeWireCameraTest.h"
#include "tests/support/TestProcess.h"

#include <QtTest>
#include <cerrno>
#include <csignal>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int ReconnectsMs = 1000; // for a few attempts to connect

} // namespace

// Cameras and servers that fail, hang or disappear.
class tst_PipeWireCameraFaults : public PipeWireCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void noticesSilence();
    void retriesHungStart();
    void reportsErrors_data();
    void reportsErrors();
    void reportsRefusal_data();
    void reportsRefusal();
    void reportsFramesThatCantBeRead();
    void namesTheProgramThatHasTheCamera();
    void noticesACoveredLens();
    void survivesServerRestart();
    void survivesLostConnections_data();
    void survivesLostConnections();
    void survivesFrozenSessionManager();
    void waitsForTheServer();
    void closesWhileServerIsFrozen();
};

void tst_PipeWireCameraFaults::noticesSilence()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--stalled")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("silent"), LongMs);
    QVERIFY(isResponsive());
    QVERIFY(isUsable(m_backend->state()));
    QVERIFY(!m_backend->delivers());

    camera->command("resume");
    QTRY_COMPARE(stateName(), QStringLiteral("working"));
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("works"));
    camera->command("stall");
    QElapsedTimer sinceStall;
    sinceStall.start();
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("fails"));
    QVERIFY(sinceStall.elapsed() >= 400);
    QCOMPARE(stateName(), QStringLiteral("silent"));
    QVERIFY(!m_backend->latestFrame().isNull()); // the last frame stays
    QTRY_VERIFY(m_backend->cause().kind == CameraCause::Kind::Stalled);
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("silent"));
}

// The camera's program is stopped, as if it were stuck in its driver.
void tst_PipeWireCameraFaults::retriesHungStart()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    camera->sendSignal(SIGSTOP);
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::Hung);
    QVERIFY(isUsable(m_backend->state()));

    QElapsedTimer duration;
    duration.start();
    m_backend->stop();
    m_backend.reset();
    QVERIFY(duration.elapsed() < 100);
    QVERIFY(isResponsive());
    QTRY_COMPARE(cameraThreads(), 0);
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("hung"));

    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    camera->sendSignal(SIGCONT);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameraFaults::reportsErrors_data()
{
    addErrors();
}

void tst_PipeWireCameraFaults::reportsErrors()
{
    QFETCH(int, error);
    QFETCH(QString, expected);
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    failAndReopen(*camera, error);
    QTRY_COMPARE(stateName(), expected);
    QCOMPARE(toString(m_backend->cause().kind), expected);
    QTRY_VERIFY(m_watcher.log.contains(QStringLiteral("fails")));
    camera.reset();
    camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameraFaults::reportsRefusal_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no format in common")
        << QStringLiteral("--unreadable") << QStringLiteral("unreadable");
    QTest::newRow("for graphics cards only")
        << QStringLiteral("--for-graphics") << QStringLiteral("unreadable");
    QTest::newRow("no memory in common")
        << QStringLiteral("--refusing") << QStringLiteral("failed");
}

// A refusal during the negotiation is reported at once, not as a hung start after 3 s.
void tst_PipeWireCameraFaults::reportsRefusal()
{
    QFETCH(QString, argument);
    QFETCH(QString, expected);
    const Camera camera = plug(NameA, QStringLiteral("Camera"), {argument});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    watch();
    m_backend->start();
    QElapsedTimer sinceStart;
    sinceStart.start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), expected, LongMs);
    QVERIFY(isResponsive());
    QVERIFY(sinceStart.elapsed() < 2000);
    QCOMPARE(toString(m_backend->cause().kind), expected);
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("state")).toString(), expected);
}

// The camera runs, and what it sends is no picture.
void tst_PipeWireCameraFaults::reportsFramesThatCantBeRead()
{
    const Camera camera = plug(
        NameA, QStringLiteral("Camera"),
        {QStringLiteral("--pixel-format"), QStringLiteral("MJPG"), QStringLiteral("--broken")});
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("unreadable"), LongMs);
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::Unreadable);
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("cause")).toString(), QStringLiteral("unreadable"));
}

// A real second client that asks the session manager for the camera alone.
void tst_PipeWireCameraFaults::namesTheProgramThatHasTheCamera()
{
    using Kind = CameraCause::Kind;
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    auto reader = std::make_unique<TestProcess>();
    reader->start(QCoreApplication::applicationDirPath() + QStringLiteral("/camera_reader"),
                  {NameA, QStringLiteral("Video <b>Meeting</b>")});
    QTRY_VERIFY_WITH_TIMEOUT(camera->output().contains("streaming"), LongMs);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("busy"), LongMs);
    QVERIFY(m_backend->cause().kind == Kind::Busy);
    QCOMPARE(m_backend->cause().program, QStringLiteral("Video <b>Meeting</b>"));
    QVERIFY(isResponsive());
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("cause")).toString(), QStringLiteral("busy"));

    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->cause().kind == Kind::Busy, LongMs);
    reader->kill();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QVERIFY(m_backend->cause().kind == Kind::None);
    m_backend->stop();
    QVERIFY(figures().value(QLatin1String("cause")).isNull());
}

void tst_PipeWireCameraFaults::noticesACoveredLens()
{
    using Kind = CameraCause::Kind;
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QVERIFY(m_backend->cause().kind == Kind::Starting);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QTRY_VERIFY(m_backend->cause().kind == Kind::None);
    const int causes = m_watcher.causes;
    camera->command("black");
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->cause().kind == Kind::Black, LongMs);
    QTRY_COMPARE(m_watcher.causes, causes + 1);
    QCOMPARE(stateName(), QStringLiteral("working"));
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("cause")).toString(), QStringLiteral("black"));
    QVERIFY(m_backend->cause().kind == Kind::None);
}

void tst_PipeWireCameraFaults::survivesServerRestart()
{
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_server->kill();
    QTRY_COMPARE(ids(), QStringList());
    watch();
    QTest::qWait(ReconnectsMs);
    QCOMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::ServerLost);
    QCOMPARE(m_backend->currentId(), NameA);
    QVERIFY(isResponsive());

    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameraFaults::survivesLostConnections_data()
{
    QTest::addColumn<bool>("isOfStream");
    QTest::newRow("that of the stream") << true;
    QTest::newRow("that of the list") << false;
}

// The server ends one of our two connections and keeps the other.
void tst_PipeWireCameraFaults::survivesLostConnections()
{
    QFETCH(bool, isOfStream);
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const QStringList before = openFiles();
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const int used = openFiles().size();
    for (int round = 0; round < 2; ++round) {
        m_watcher.log.clear();
        const int streams = camera->output().count("streaming");
        QVERIFY(m_server->cutConnections(isOfStream));
        watch();
        QTRY_VERIFY_WITH_TIMEOUT(camera->output().count("streaming") > streams, LongMs);
        // If this process is slow, both signals may arrive at once, with the list between them.
        QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
        QTRY_VERIFY(m_watcher.log.lastIndexOf(QStringLiteral("works")) >=
                    m_watcher.log.lastIndexOf(QStringLiteral("fails")));
        QVERIFY(isResponsive());
        QCOMPARE(m_watcher.log.contains(QStringLiteral("list")), !isOfStream);
        QCOMPARE(ids(), QStringList(NameA));
        QCOMPARE(stateName(), QStringLiteral("working"));
    }
    QTRY_COMPARE(openFiles().size(), used);
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QTRY_COMPARE(openFiles(), before);
}

// The session manager links streams to cameras.
void tst_PipeWireCameraFaults::survivesFrozenSessionManager()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_server->freezeManager();
    watch();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    QVERIFY(isResponsive());
    m_server->thawManager();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameraFaults::waitsForTheServer()
{
    m_server->stop();
    makeBackend();
    m_backend->start();
    QCOMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

// tst_CameraDialog freezes the server at all other steps.
void tst_PipeWireCameraFaults::closesWhileServerIsFrozen()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_server->freeze();
    watch();
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QVERIFY(isResponsive());
}

QTEST_GUILESS_MAIN(tst_PipeWireCameraFaults)
#include "tst_PipeWireCameraFaults.moc"
