// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ThreadCount.h"
#include "tests/devices/v4l2/TestSources.h"
#include "tests/devices/v4l2/V4l2CameraTest.h"
#include "tests/support/TestProcess.h"

#include <QSemaphore>
#include <QtTest>
#include <atomic>

using namespace Platform;
using namespace TestSupport;

// Cameras of the kernel that fail, hang or send nothing.
class tst_V4l2CameraFaults : public V4l2CameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void noticesSilence();
    void reportsErrors_data();
    void reportsErrors();
    void namesTheProgramThatHasTheDeviceFile();
    void reportsMissingSource();
    void reportsSourceThatDoesNotStart();
    void reportsFormatsThatCantBeShown_data();
    void reportsFormatsThatCantBeShown();
    void bearsAFewBrokenFrames();
    void waitsForHungStart();
};

void tst_V4l2CameraFaults::noticesSilence()
{
    GstElement* valve = nullptr;
    m_makeSource = [&valve](const QString&) {
        GstElement* const result = makeElement(Bars + " ! valve name=valve drop=true");
        valve = gst_bin_get_by_name(GST_BIN(result), "valve");
        return result;
    };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("silent"), LongMs);
    QVERIFY(isUsable(m_backend->state()));
    g_object_set(valve, "drop", FALSE, nullptr);
    QTRY_VERIFY(m_watcher.doesWork);
    g_object_set(valve, "drop", TRUE, nullptr);
    QTRY_VERIFY(!m_watcher.doesWork);
    QCOMPARE(stateName(), QStringLiteral("silent"));
    g_object_set(valve, "drop", FALSE, nullptr);
    QTRY_VERIFY(m_watcher.doesWork);
    gst_object_unref(valve);
}

void tst_V4l2CameraFaults::reportsErrors_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("details");
    QTest::addColumn<QString>("expected");
    const int open = GST_RESOURCE_ERROR_OPEN_READ_WRITE;
    const auto reason = [](int error) { return QByteArray("system error: ") + g_strerror(error); };
    QTest::newRow("busy") << int(GST_RESOURCE_ERROR_BUSY) << QByteArray("Device is in use")
                          << QStringLiteral("busy");
    QTest::newRow("busy when opened") << open << reason(EBUSY) << QStringLiteral("busy");
    QTest::newRow("denied") << open << reason(EACCES) << QStringLiteral("denied");
    QTest::newRow("not permitted") << open << reason(EPERM) << QStringLiteral("denied");
    QTest::newRow("other") << open << reason(EIO) << QStringLiteral("failed");
}

void tst_V4l2CameraFaults::reportsErrors()
{
    QFETCH(int, code);
    QFETCH(QByteArray, details);
    QFETCH(QString, expected);
    std::atomic_bool isRepaired = false;
    m_makeSource = [&](const QString&) {
        return isRepaired ? makeElement(Bars)
                          : makeFailingElement(static_cast<GstResourceError>(code), details);
    };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), expected, LongMs);
    isRepaired = true;
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    m_backend.reset(); // before what it uses is destroyed
    m_system.reset();
}

// A file of ours takes the place of the device file; another program has it open.
void tst_V4l2CameraFaults::namesTheProgramThatHasTheDeviceFile()
{
    QFile file(m_folder->filePath(QStringLiteral("video0")));
    QVERIFY(file.open(QIODevice::WriteOnly)); // this process doesn't count
    m_makeSource = [](const QString&) {
        return makeFailingElement(GST_RESOURCE_ERROR_BUSY, "Device is in use");
    };
    m_sockets->plug(device(file.fileName(), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("busy"), LongMs);
    QVERIFY(m_backend->cause() == (CameraCause{CameraCause::Kind::Busy, {}}));

    TestProcess reader;
    reader.start(QStringLiteral("tail"), {QStringLiteral("-f"), file.fileName()});
    const CameraCause named{CameraCause::Kind::Busy, QStringLiteral("tail")};
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->cause() == named, LongMs);
    reader.end();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->cause().program.isEmpty(), LongMs);
}

void tst_V4l2CameraFaults::reportsMissingSource()
{
    m_makeSource = [](const QString&) { return nullptr; };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("failed"), LongMs);
}

void tst_V4l2CameraFaults::reportsSourceThatDoesNotStart()
{
    m_makeSource = [](const QString&) { return makeElement("filesrc location=/absent/camera"); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("failed"), LongMs);
}

void tst_V4l2CameraFaults::reportsFormatsThatCantBeShown_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("no such format") << QByteArray("videotestsrc is-live=true ! capsfilter "
                                                  "caps=video/x-raw,format=GRAY16_LE");
    QTest::newRow("broken JPEGs") << QByteArray(
        "fakesrc sizetype=fixed sizemax=2000 do-timestamp=1 "
        "is-live=true datarate=60000 ! capsfilter "
        "caps=image/jpeg,width=320,height=240");
}

void tst_V4l2CameraFaults::reportsFormatsThatCantBeShown()
{
    QFETCH(QByteArray, source);
    m_makeSource = [source](const QString&) { return makeElement(source); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("unreadable"), LongMs);
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::Unreadable);
}

void tst_V4l2CameraFaults::bearsAFewBrokenFrames()
{
    constexpr int Few = 5;
    m_makeSource = [](const QString&) { return makeElementWithBrokenStart(Few); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    const QString unreadable = QStringLiteral("unreadable");
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.doesWork || stateName() == unreadable, LongMs);
    QCOMPARE(stateName(), QStringLiteral("working"));
}

void tst_V4l2CameraFaults::waitsForHungStart()
{
    QSemaphore driver;
    m_makeSource = [&driver](const QString&) {
        driver.acquire();
        return makeElement(Bars);
    };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("hung"), LongMs);
    QVERIFY(isUsable(m_backend->state()));
    QCOMPARE(threadCount("v4l2 stream"), 1);
    driver.release();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    m_backend.reset();
    m_system.reset();
}

QTEST_GUILESS_MAIN(tst_V4l2CameraFaults)
#include "tst_V4l2CameraFaults.moc"
