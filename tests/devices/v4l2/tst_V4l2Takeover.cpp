// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/PreferredFeed.h"
#include "tests/devices/ThreadCount.h"
#include "tests/devices/v4l2/TestSources.h"
#include "tests/devices/v4l2/V4l2CameraTest.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PipeWireServer.h"

#include <QtTest>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int ReconnectsMs = 1000; // for a few attempts to connect

} // namespace

// Which of PipeWire and the kernel brings the cameras, with a real PipeWire.
class tst_V4l2Takeover : public V4l2CameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void staysAwayIfPipeWireAnswers();
    void isLeftWhenPipeWireStartsLate();
    void isUsedWhilePipeWireListsNone();
};

void tst_V4l2Takeover::staysAwayIfPipeWireAnswers()
{
    PipeWireServer server;
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
    QVERIFY2(server.start(), qPrintable(server.problem()));
    const CameraProcess camera(QStringLiteral("cam_a"), QStringLiteral("Camera"), {});
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Other")));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(names(), QStringList(QStringLiteral("Camera")), LongMs);
    QCOMPARE(m_sockets->users(), 0);

    server.kill(); // it may come back
    QTRY_VERIFY_WITH_TIMEOUT(names().isEmpty(), LongMs);
    QTest::qWait(ReconnectsMs);
    QVERIFY(names().isEmpty());
    QCOMPARE(m_sockets->users(), 0);
    m_backend.reset();
    m_system.reset();
}

// The camera in use is taken over, and shown all the time.
void tst_V4l2Takeover::isLeftWhenPipeWireStartsLate()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    PipeWireServer server;
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QVERIFY(isNear(m_backend->latestFrame().pixel(3, 3), qRgb(0, 0, 255)));
    QVERIFY2(server.start(), qPrintable(server.problem()));
    m_watcher.log.clear();
    const CameraProcess camera(QStringLiteral("cam_a"), QStringLiteral("Camera by PipeWire"),
                               {QStringLiteral("--bus-path"), PlaceA});
    const QStringList expected{QStringLiteral("Camera by PipeWire")};
    QTRY_COMPARE_WITH_TIMEOUT(names(), expected, LongMs);
    QCOMPARE(m_backend->currentId(), PlaceA);
    QTRY_VERIFY_WITH_TIMEOUT(isNear(m_backend->latestFrame().pixel(3, 3), qRgb(0xc8, 0x28, 0x28)),
                             LongMs);
    QTRY_COMPARE(threadCount("v4l2 cameras") + threadCount("v4l2 stream"), 0);
    QCOMPARE(sourcesAlive(), 0);
    QVERIFY(!m_watcher.log.contains(QStringLiteral("fails")));
    QCOMPARE(m_watcher.log.count(QStringLiteral("list")), 1);
    QCOMPARE(stateName(), QStringLiteral("working"));

    // As many files are open as if V4L2 had never been used.
    const int files = openFiles().size();
    m_backend.reset();
    m_system.reset();
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QTRY_COMPARE(openFiles().size(), files);
    m_backend.reset();
    m_system.reset();
}

void tst_V4l2Takeover::isUsedWhilePipeWireListsNone()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    PipeWireServer server;
    qunsetenv("PIPEWIRE_RUNTIME_DIR");
    QVERIFY2(server.start(), qPrintable(server.problem()));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    // Another camera isn't worth losing this one.
    const CameraProcess other(QStringLiteral("cam_b"), QStringLiteral("Other"),
                              {QStringLiteral("--bus-path"), PlaceB});
    QTest::qWait(2 * PreferredFeed::Patience.count());
    QCOMPARE(names(), QStringList(QStringLiteral("Camera")));
    QCOMPARE(stateName(), QStringLiteral("working"));
    const CameraProcess camera(QStringLiteral("cam_a"), QStringLiteral("Camera by PipeWire"),
                               {QStringLiteral("--bus-path"), PlaceA});
    const QStringList both{QStringLiteral("Camera by PipeWire"), QStringLiteral("Other")};
    QTRY_COMPARE_WITH_TIMEOUT(names(), both, LongMs);
    QCOMPARE(m_backend->currentId(), PlaceA);
    QTRY_VERIFY_WITH_TIMEOUT(isNear(m_backend->latestFrame().pixel(3, 3), qRgb(0xc8, 0x28, 0x28)),
                             LongMs);
    m_backend.reset();
    m_system.reset();
}

QTEST_GUILESS_MAIN(tst_V4l2Takeover)
#include "tst_V4l2Takeover.moc"
