// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/backend/SettingsStore.h"
#include "tests/devices/pipewire/PipeWireCameraTest.h"

#include <QtTest>
#include <csignal>

using namespace Platform;
using namespace TestSupport;

// The list of cameras and the choice among them, on a real server.
class tst_PipeWireCameraList : public PipeWireCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void recognizesACameraByItsPlace();
    void numbersEqualNames();
    void announcesABurstOnce();
    void hidesWhatIsNoCamera();
    void reopensReturningCamera();
    void waitsForMissingCamera();
    void switchesOff();
    void remembersTheChoice();
    void ignoresAbsentRememberedChoice();
};

// After replugging, the node has another name but the device is in the same place.
void tst_PipeWireCameraList::recognizesACameraByItsPlace()
{
    const QString place = QStringLiteral("pci-0000:00:14.0-usb-0:5:1.0");
    const QStringList plugged{QStringLiteral("--bus-path"), place};
    Camera camera = plug(NameA, QStringLiteral("Camera"), plugged);
    const Camera metadata =
        plug(QStringLiteral("metadata"), QStringLiteral("Metadata"),
             plugged + QStringList{QStringLiteral("--capabilities"), QStringLiteral(":")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList(place), LongMs);
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);

    camera->kill();
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    camera = plug(NameB, QStringLiteral("Camera"), plugged);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    QCOMPARE(m_backend->currentId(), place);
    QCOMPARE(ids(), QStringList(place));
}

void tst_PipeWireCameraList::numbersEqualNames()
{
    const Camera a = plug(NameA, QStringLiteral("Camera"));
    const Camera b = plug(NameB, QStringLiteral("Camera"));
    makeBackend();
    const QStringList expected{QStringLiteral("Camera"), QStringLiteral("Camera (2)")};
    QTRY_COMPARE_WITH_TIMEOUT(names(), expected, LongMs);
}

void tst_PipeWireCameraList::announcesABurstOnce()
{
    constexpr int Count = 4;
    std::vector<Camera> cameras;
    for (int i = 0; i < Count; ++i) {
        cameras.push_back(plug(QStringLiteral("cam_%1").arg(i), QStringLiteral("Camera")));
    }
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), Count, LongMs);
    QTRY_VERIFY(m_watcher.log.endsWith(QStringLiteral("current cam_0")));
    m_watcher.log.clear();
    m_server->freeze(); // so that it notices all of them at once, however long they take to end
    for (const Camera& camera : cameras) {
        camera->sendSignal(SIGKILL);
    }
    for (const Camera& camera : cameras) {
        QTRY_COMPARE(camera->state(), QProcess::NotRunning);
    }
    m_server->thaw();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 0, LongMs);
    const QStringList expected{QStringLiteral("list"), QStringLiteral("current cam_0")};
    QTRY_COMPARE(m_watcher.log, expected);
}

void tst_PipeWireCameraList::hidesWhatIsNoCamera()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    const Camera gray = plug(QStringLiteral("gray"), QStringLiteral("Sensor"),
                             {QStringLiteral("--pixel-format"), QStringLiteral("GRAY8")});
    const Camera infrared =
        plug(QStringLiteral("infrared"), QStringLiteral("Integrated IR Camera"));
    const Camera screen = plug(QStringLiteral("screen"), QStringLiteral("Desktop"),
                               {QStringLiteral("--role"), QStringLiteral("Screen")});
    const Camera last = plug(QStringLiteral("last"), QStringLiteral("Last"));
    makeBackend();
    const QStringList expected{NameA, QStringLiteral("last")};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), expected, LongMs);
}

void tst_PipeWireCameraList::reopensReturningCamera()
{
    Camera camera = plug(NameA, QStringLiteral("Camera"));
    const Camera other = plug(NameB, QStringLiteral("Other"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LongMs);
    m_backend->setCurrent(NameA);
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_watcher.log.clear();

    watch();
    camera->sendSignal(SIGKILL);
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY(isResponsive());
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::Unplugged);
    QCOMPARE(m_backend->currentId(), NameA);
    QCOMPARE(m_backend->currentName(), QStringLiteral("Camera"));
    QCOMPARE(ids(), QStringList(NameB));
    QTRY_VERIFY(m_watcher.log.endsWith(QStringLiteral("current cam_a")));

    camera = plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--color"), GreenText});
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Green));
    QTRY_VERIFY(m_watcher.log.contains(QStringLiteral("works")));
}

void tst_PipeWireCameraList::waitsForMissingCamera()
{
    const Camera other = plug(NameB, QStringLiteral("Other"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->setCurrent(NameA);
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("current cam_a"));
    m_backend->start();
    QCOMPARE(stateName(), QStringLiteral("absent"));
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireCameraList::switchesOff()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    m_backend->setCurrent(QString());
    QCOMPARE(stateName(), QStringLiteral("off"));
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_COMPARE(m_watcher.log.last(), QStringLiteral("current "));
    QTRY_VERIFY(camera->output().endsWith("paused\n"));
    m_backend->setCurrent(NameA);
    QTRY_COMPARE(stateName(), QStringLiteral("working"));
}

void tst_PipeWireCameraList::remembersTheChoice()
{
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    const Camera b = plug(NameB, QStringLiteral("Camera B"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 2, LongMs);
    QCOMPARE(m_backend->currentId(), NameA);
    m_backend->setCurrent(NameB);
    QVERIFY(FileWriter::waitForWritten(LongMs));
    m_backend.reset();
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->currentId(), NameB, LongMs);
}

void tst_PipeWireCameraList::ignoresAbsentRememberedChoice()
{
    {
        SettingsStore store(m_settings->filePath(QStringLiteral("devices.ini")));
        store.setValue(QStringLiteral("camera/current"), NameB);
    }
    QVERIFY(FileWriter::waitForWritten(LongMs));
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->currentId(), NameA, LongMs);
}

QTEST_GUILESS_MAIN(tst_PipeWireCameraList)
#include "tst_PipeWireCameraList.moc"
