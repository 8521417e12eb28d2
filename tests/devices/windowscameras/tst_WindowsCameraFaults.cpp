// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windows/DriverThread.h"
#include "platform/devices/windowscameras/WindowsCameraCapture.h"
#include "tests/devices/windowscameras/WindowsCameraTest.h"
#include "tests/support/ProcessResources.h"

#include <QtTest>
#include <mferror.h>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int AtOnceMs = 100;

// Wine's graph of filters keeps a handle, and each look at its list two.
int keptByWine(int openings, const QElapsedTimer& duration)
{
    QFETCH_GLOBAL(StagedSystem, system);
    const qint64 looks = 1 + duration.elapsed() / WindowsCameraCapture::LookPeriod.count();
    return system == StagedSystem::DirectShow ? 3 * openings + 2 * int(looks) : 0;
}

} // namespace

// Cameras of Windows that are refused, hang, go silent or are unplugged, and what is left of them.
class tst_WindowsCameraFaults : public WindowsCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addSystems(); }
    void init();
    void saysWhyItIsRefused_data();
    void saysWhyItIsRefused();
    void waitsForAnActivationThatHangs();
    void leavesAHungCameraAtOnce_data();
    void leavesAHungCameraAtOnce();
    void startsNoThreadsWithoutEnd();
    void noticesSilence();
    void noticesTheEnd();
    void reopensReturningCamera();
    void reopensWhatNeverEnds();
    void switchesCameras();
    void leavesNothingBehind();
};

void tst_WindowsCameraFaults::init()
{
    WindowsCameraTest::init();
    stageOnSystem();
}

void tst_WindowsCameraFaults::saysWhyItIsRefused_data()
{
    QTest::addColumn<bool>("isActivation");
    QTest::addColumn<quint32>("error");
    QTest::addColumn<QString>("state");
    QTest::newRow("privacy settings") << true << 0x80070005U << QStringLiteral("denied");
    QTest::newRow("in use") << true << 0xc00d3704U << QStringLiteral("busy");
    QTest::newRow("in use, says the reader") << false << 0xc00d3704U << QStringLiteral("busy");
    QTest::newRow("taken by another program") << false << 0xc00d3ea3U << QStringLiteral("busy");
    QTest::newRow("broken") << true << 0x80004005U << QStringLiteral("failed");
    QTest::newRow("for 32 bits") << true << 0x800700c1U << QStringLiteral("failed");
    QTest::newRow("without a format") << false << 0x80040217U << QStringLiteral("unreadable");
    QTest::newRow("gone for now") << true << 0xc00d3ea2U << QStringLiteral("failed");
}

void tst_WindowsCameraFaults::saysWhyItIsRefused()
{
    QFETCH(bool, isActivation);
    QFETCH(quint32, error);
    const auto refuse = [this, isActivation](HRESULT with) {
        if (isActivation) {
            m_cameras->refuseActivation(LinkA, with);
        } else {
            m_cameras->refuseReading(LinkA, with);
        }
    };
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    refuse(static_cast<HRESULT>(error));
    makeBackend();
    m_backend->start();
    QFETCH(QString, state);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), state, LongMs);
    QCOMPARE(causeName(), state);
    QCOMPARE(m_cameras->opened(LinkA), 0);
    refuse(S_OK); // it is tried anew by itself
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(causeName(), QString());
}

void tst_WindowsCameraFaults::waitsForAnActivationThatHangs()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->hangActivation(LinkA, true);
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("hung"), LongMs);
    QCOMPARE(m_cameras->hangingCalls(), 1); // a second one would hang, too
    m_cameras->hangActivation(LinkA, false);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_WindowsCameraFaults::leavesAHungCameraAtOnce_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("while it is opened") << false;
    QTest::newRow("while it is closed") << true;
}

void tst_WindowsCameraFaults::leavesAHungCameraAtOnce()
{
    QFETCH(bool, isOpen);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->hangActivation(LinkA, !isOpen);
    m_cameras->hangShutdown(LinkA, isOpen);
    makeBackend();
    m_backend->start();
    if (isOpen) {
        QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    } else {
        QTRY_COMPARE_WITH_TIMEOUT(m_cameras->hangingCalls(), 1, LongMs);
    }
    QElapsedTimer duration;
    duration.start();
    m_backend->stop();
    m_backend.reset();
    m_system.reset();
    QVERIFY(duration.elapsed() < AtOnceMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_cameras->hangingCalls(), 1, LongMs);
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 1, LongMs); // what hangs, and nothing else
    m_cameras->hangActivation(LinkA, false);
    m_cameras->hangShutdown(LinkA, false);
    QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 0, LongMs);
    QCOMPARE(m_cameras->opened(LinkA), 0); // what was opened late is closed
}

// As a user does who clicks again and again.
void tst_WindowsCameraFaults::startsNoThreadsWithoutEnd()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->hangActivation(LinkA, true);
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList{IdA}, LongMs);
    for (int i = 0; i < 2 * DriverThread::MaxCount; ++i) {
        m_backend->start();
        m_backend->stop();
        QCoreApplication::processEvents();
    }
    QVERIFY(DriverThread::count() <= DriverThread::MaxCount);
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("hung"), LongMs);
    m_cameras->hangActivation(LinkA, false);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), 2 * LongMs);
}

void tst_WindowsCameraFaults::noticesSilence()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    start();
    m_cameras->stall(LinkA, true);
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("stalled"), LongMs);
    QVERIFY(!m_backend->delivers());
    m_cameras->stall(LinkA, false);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(m_cameras->activations(LinkA), 1); // the same stream goes on
}

void tst_WindowsCameraFaults::noticesTheEnd()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    start();
    m_cameras->endStream(LinkA);
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("failed"), LongMs);
    QVERIFY(m_backend->latestFrame().isNull());
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs); // by itself
}

void tst_WindowsCameraFaults::reopensReturningCamera()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    start();
    m_cameras->unplug(LinkA);
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("unplugged"), LongMs);
    QVERIFY(m_backend->latestFrame().isNull());
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    StagedCameras::castDeviceChange();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(causeName(), QString());
}

// Unplugged and plugged again so fast that the list doesn't change, and no error comes.
void tst_WindowsCameraFaults::reopensWhatNeverEnds()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    start();
    m_cameras->unplug(LinkA);
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("stalled"), LongMs);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), 2 * LongMs);
}

void tst_WindowsCameraFaults::switchesCameras()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->plug(LinkB, QStringLiteral("Other"));
    makeBackend();
    start();
    m_backend->setCurrent(IdB);
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_cameras->opened(LinkA), 0, LongMs);
    QCOMPARE(m_cameras->opened(LinkB), 1);
    m_backend->setCurrent({});
    QCOMPARE(stateName(), QStringLiteral("off"));
    QTRY_COMPARE_WITH_TIMEOUT(m_cameras->opened(LinkB), 0, LongMs); // the light is out
}

void tst_WindowsCameraFaults::leavesNothingBehind()
{
    constexpr int Openings = 40;
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    makeBackend();
    const auto openOnce = [this] {
        m_watcher.frames = 0;
        m_backend->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames > 0, LongMs);
        m_backend->stop();
        QTRY_COMPARE_WITH_TIMEOUT(DriverThread::count(), 1, LongMs); // that of the list
    };
    openOnce(); // what Wine keeps of the first one
    openOnce();
    const int threads = ProcessResources::threads();
    const int handles = ProcessResources::openHandles();
    QElapsedTimer duration;
    duration.start();
    for (int i = 0; i < Openings; ++i) {
        openOnce();
    }
    QCOMPARE(m_cameras->opened(LinkA), 0);
    QTRY_VERIFY_WITH_TIMEOUT(ProcessResources::threads() <= threads, LongMs);
    QTRY_VERIFY_WITH_TIMEOUT(
        ProcessResources::openHandles() <= handles + 2 + keptByWine(Openings, duration), LongMs);
}

QTEST_GUILESS_MAIN(tst_WindowsCameraFaults)
#include "tst_WindowsCameraFaults.moc"
