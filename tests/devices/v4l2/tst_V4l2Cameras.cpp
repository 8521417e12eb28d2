// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ThreadCount.h"
#include "tests/devices/v4l2/TestSources.h"
#include "tests/devices/v4l2/V4l2CameraTest.h"

#include <QSemaphore>
#include <QtTest>
#include <atomic>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int AtOnceMs = 100;
// Few and small frames, so that a busy machine can keep up.
const QByteArray Modest(" ! capsfilter caps=video/x-raw,width=320,height=240,framerate=10/1");

int threads()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}

} // namespace

// Cameras of the kernel: their list, their frames, and what is left after use.
class tst_V4l2Cameras : public V4l2CameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void listsOnlyCameras();
    void recognizesACameraByItsPlace();
    void showsFrames_data();
    void showsFrames();
    void choosesTheMode_data();
    void choosesTheMode();
    void followsTheOutputSize_data();
    void followsTheOutputSize();
    void switchesCameras();
    void reopensReturningCamera();
    void leavesHungStartAtOnce();
    void leavesNothingBehind();
};

void tst_V4l2Cameras::listsOnlyCameras()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    m_sockets->plug(device(QStringLiteral("/dev/video1"), PlaceA, QStringLiteral("Camera"),
                           QStringLiteral(":")));
    m_sockets->plug(device(QStringLiteral("/dev/video2"), PlaceB, QStringLiteral("Camera")));
    m_sockets->plug(device(QStringLiteral("/dev/video3"), QStringLiteral("infrared"),
                           QStringLiteral("Integrated IR Camera")));
    m_sockets->plug(device(QStringLiteral("/dev/video4"), QStringLiteral("encoder"),
                           QStringLiteral("Encoder"), QStringLiteral(":video_output:")));
    makeBackend();
    const QStringList places{PlaceA, PlaceB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), places, LongMs);
    const QStringList numbered{QStringLiteral("Camera"), QStringLiteral("Camera (2)")};
    QCOMPARE(names(), numbered);
    QTRY_COMPARE(m_backend->currentId(), PlaceA);
    QCOMPARE(stateName(), QStringLiteral("ready"));
    QCOMPARE(m_watcher.log.count(QStringLiteral("list")), 1);

    m_sockets->unplug(QStringLiteral("/dev/video0"));
    m_sockets->unplug(QStringLiteral("/dev/video1"));
    m_sockets->plug(device(QStringLiteral("/dev/video5"), {}, QStringLiteral("Box")));
    const QStringList changed{QStringLiteral("/dev/video5"), PlaceB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), changed, LongMs);
    QTRY_COMPARE(m_watcher.log.count(QStringLiteral("list")), 2); // the burst is announced once
}

void tst_V4l2Cameras::recognizesACameraByItsPlace()
{
    VideoDevices::Properties properties =
        device(QStringLiteral("/dev/video0"), {}, QStringLiteral("Camera"));
    properties.insert(QStringLiteral("ID_SERIAL"), QStringLiteral("Maker_Camera_0001"));
    m_sockets->plug(properties);
    m_sockets->plug(device(QStringLiteral("/dev/video1"), PlaceB, QStringLiteral("Other")));
    makeBackend();
    const QStringList expected{QStringLiteral("Maker_Camera_0001"), PlaceB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), expected, LongMs);
    m_backend->setCurrent(PlaceB);

    m_sockets->unplug(QStringLiteral("/dev/video1"));
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    m_sockets->plug(device(QStringLiteral("/dev/video7"), PlaceB, QStringLiteral("Other")));
    QTRY_COMPARE(stateName(), QStringLiteral("ready"));
    QCOMPARE(m_backend->currentId(), PlaceB);
}

void tst_V4l2Cameras::showsFrames_data()
{
    QTest::addColumn<QByteArray>("caps");
    QTest::addColumn<QSize>("expected");
    const QSize fitted(229, 172);
    for (const char* format :
         {"YUY2", "UYVY", "NV12", "I420", "RGB", "BGR", "RGBx", "BGRx", "xRGB", "xBGR"}) {
        QTest::newRow(format) << Modest + ",format=" + format << fitted;
    }
    QTest::newRow("motion JPEG") << Modest + ",format=I420 ! jpegenc quality=95" << QSize(229, 172);
    QTest::newRow("another size")
        << QByteArray(" ! capsfilter caps=video/x-raw,width=1281,height=721,framerate=5/1")
        << QSize(306, 172);
    QTest::newRow("any size") << QByteArray() << PreviewSize;
}

void tst_V4l2Cameras::showsFrames()
{
    QFETCH(QByteArray, caps);
    QFETCH(QSize, expected);
    m_makeSource = [caps](const QString&) { return makeElement(Bars + caps); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames > 3, LongMs);
    QTRY_VERIFY(m_watcher.doesWork);
    QCOMPARE(stateName(), QStringLiteral("working"));
    const QImage frame = m_backend->latestFrame();
    if (caps.contains("jpegenc")) {
        QVERIFY(!frame.isNull()); // jpegenc negotiates the smallest size
    } else {
        QCOMPARE(frame.size(), expected);
    }
    // Mirrored, as self-views are.
    const int y = frame.height() / 4;
    QVERIFY(isNear(frame.pixel(frame.width() / 14, y), qRgb(0, 0, 255)));
    QVERIFY(isNear(frame.pixel(frame.width() * 13 / 14, y), qRgb(255, 255, 255)));
    m_backend->stop();
    QVERIFY(m_backend->latestFrame().isNull());
    QCOMPARE(m_report.measurements.value(QStringLiteral("camera")).value(QLatin1String("state")),
             QJsonValue(QStringLiteral("working")));
}

void tst_V4l2Cameras::choosesTheMode_data()
{
    QTest::addColumn<QByteArray>("modes");
    QTest::addColumn<QSize>("expected");
    QTest::addColumn<QString>("told");
    const auto raw = [](const char* size, const char* rates) {
        return QByteArray("video/x-raw,format=YUY2,") + size + ",framerate=" + rates + ";";
    };
    QTest::newRow("webcam") << raw("width=1280,height=720", "10/1") +
                                   raw("width=640,height=480", "{(fraction)15/1,(fraction)30/1}") +
                                   raw("width=320,height=240", "30/1")
                            << QSize(320, 240)
                            << QStringLiteral("YUY2 1280x720 10/s, YUY2 640x480 30/s, "
                                              "YUY2 320x240 30/s");
    QTest::newRow("slow") << raw("width=640,height=480", "5/1") +
                                 raw("width=800,height=600", "10/1")
                          << QSize(800, 600)
                          << QStringLiteral("YUY2 800x600 10/s, YUY2 640x480 5/s");
    QTest::newRow("small") << raw("width=160,height=120", "30/1") +
                                  raw("width=176,height=144", "30/1")
                           << QSize(176, 144)
                           << QStringLiteral("YUY2 176x144 30/s, YUY2 160x120 30/s");
    QTest::newRow("steps") << raw("width=[160,640,32],height=[120,480,8]", "[1/1,60/1]")
                           << QSize(320, 176) << QStringLiteral("YUY2 160x120-640x480 60/s");
}

void tst_V4l2Cameras::choosesTheMode()
{
    QFETCH(QByteArray, modes);
    QFETCH(QSize, expected);
    m_makeSource = [modes](const QString&) {
        return makeElement(Bars + " ! capsfilter caps=\"" + modes + "\"");
    };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames > 0, LongMs);
    m_backend->stop();
    const QJsonObject figures = m_report.measurements.value(QStringLiteral("camera"));
    QCOMPARE(figures.value(QStringLiteral("width")).toInt(), expected.width());
    QCOMPARE(figures.value(QStringLiteral("height")).toInt(), expected.height());
    QTEST(figures.value(QStringLiteral("modes")).toString(), "told");
}

void tst_V4l2Cameras::followsTheOutputSize_data()
{
    QTest::addColumn<QByteArray>("caps");
    QTest::addColumn<QSize>("small");
    QTest::addColumn<QSize>("large");
    QTest::newRow("another mode") << QByteArray() << PreviewSize << 2 * PreviewSize;
    QTest::newRow("one mode") << QByteArray(" ! capsfilter caps=video/x-raw,width=640,height=480")
                              << QSize(229, 172) << QSize(459, 344);
}

void tst_V4l2Cameras::followsTheOutputSize()
{
    QFETCH(QByteArray, caps);
    QFETCH(QSize, small);
    QFETCH(QSize, large);
    m_makeSource = [caps](const QString&) { return makeElement(Bars + caps); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), small, LongMs);
    m_backend->setOutputSize(2 * PreviewSize);
    QTRY_COMPARE(m_backend->latestFrame().size(), large);
    QCOMPARE(stateName(), QStringLiteral("working"));
}

void tst_V4l2Cameras::switchesCameras()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    m_sockets->plug(device(QStringLiteral("/dev/video2"), PlaceB, QStringLiteral("Other")));
    m_makeSource = [](const QString& path) {
        return makeElement(path == QLatin1String("/dev/video2")
                               ? QByteArray("videotestsrc is-live=true pattern=green")
                               : Bars);
    };
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    m_backend->setCurrent(PlaceB);
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(isNear(m_backend->latestFrame().pixel(3, 3), qRgb(0, 255, 0)));
    QTRY_COMPARE(sourcesAlive(), 1);
    m_backend->setCurrent({});
    QCOMPARE(stateName(), QStringLiteral("off"));
    QTRY_COMPARE(sourcesAlive(), 0);
}

void tst_V4l2Cameras::reopensReturningCamera()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    m_sockets->unplug(QStringLiteral("/dev/video0"));
    QTRY_COMPARE(stateName(), QStringLiteral("absent"));
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_COMPARE(sourcesAlive(), 0);
    m_sockets->plug(device(QStringLiteral("/dev/video3"), PlaceA, QStringLiteral("Camera")));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

// Leaving doesn't wait for the driver. What it opens later is dropped and freed.
void tst_V4l2Cameras::leavesHungStartAtOnce()
{
    QSemaphore driver;
    std::atomic_int opening = 0;
    m_makeSource = [&](const QString& path) {
        ++opening;
        if (path == QLatin1String("/dev/video0")) {
            driver.acquire();
        }
        return makeElement(Bars);
    };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    m_sockets->plug(device(QStringLiteral("/dev/video2"), PlaceB, QStringLiteral("Other")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(opening.load(), 1, LongMs);
    m_backend->setCurrent(PlaceB);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
    m_backend->setCurrent(PlaceA);
    QTRY_COMPARE_WITH_TIMEOUT(opening.load(), 3, LongMs);

    QElapsedTimer duration;
    duration.start();
    m_backend->stop();
    m_backend.reset();
    QVERIFY(duration.elapsed() < AtOnceMs);
    QTRY_COMPARE(threadCount("v4l2 cameras"), 0);
    QTRY_COMPARE(threadCount("v4l2 stream"), 2); // the other camera's thread is still ending
    driver.release(2);
    QTRY_COMPARE(threadCount("v4l2 stream"), 0);
    QTRY_COMPARE(sourcesAlive(), 0);
    m_system.reset();
}

void tst_V4l2Cameras::leavesNothingBehind()
{
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    const int threadsBefore = threads();
    const QStringList filesBefore = openFiles();
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QCOMPARE(sourcesAlive(), 1);
    QVERIFY(threads() > threadsBefore);
    m_backend->stop();
    QTRY_COMPARE(sourcesAlive(), 0); // the light is out
    m_backend.reset();
    QTRY_VERIFY(threads() <= threadsBefore);
    QTRY_COMPARE(openFiles(), filesBefore);
}

QTEST_GUILESS_MAIN(tst_V4l2Cameras)
#include "tst_V4l2Cameras.moc"
