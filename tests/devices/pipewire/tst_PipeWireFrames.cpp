// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/pipewire/PipeWireCameraTest.h"

#include <QtTest>
#include <atomic>
#include <cstdarg>
#include <linux/dma-buf.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Platform;
using namespace TestSupport;

namespace {

std::atomic_int readingsBegun = 0;
std::atomic_int readingsEnded = 0;

} // namespace

// Stands before that of the system. The made-up driver memory can't be synchronized.
extern "C" int ioctl(int file, unsigned long request, ...) // NOLINT(cert-dcl50-cpp)
{
    va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    if (request == DMA_BUF_IOCTL_SYNC) {
        const auto flags = static_cast<const dma_buf_sync*>(argument)->flags;
        readingsBegun += flags == (DMA_BUF_SYNC_READ | DMA_BUF_SYNC_START) ? 1 : 0;
        readingsEnded += flags == (DMA_BUF_SYNC_READ | DMA_BUF_SYNC_END) ? 1 : 0;
    }
    return static_cast<int>(syscall(SYS_ioctl, file, request, argument));
}

// Frames, from virtual cameras to the preview, on a real server.
class tst_PipeWireFrames : public PipeWireCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTwoCameras();
    void convertsEveryPixelFormat_data();
    void convertsEveryPixelFormat();
    void uprightsTurnedSensors_data();
    void uprightsTurnedSensors();
    void mapsDriverMemory();
    void followsFormatChanges();
    void choosesTheMode_data();
    void choosesTheMode();
    void changesTheModeForASharperScreen();
    void recordsMeasurements();
};

void tst_PipeWireFrames::showsTwoCameras()
{
    const Camera a = plug(NameA, QStringLiteral("Camera A"));
    const Camera b =
        plug(NameB, QStringLiteral("Camera B"), {QStringLiteral("--color"), GreenText});
    makeBackend();
    const QStringList both{NameA, NameB};
    QTRY_COMPARE_WITH_TIMEOUT(ids(), both, LongMs);
    const QStringList expected{QStringLiteral("Camera A"), QStringLiteral("Camera B")};
    QCOMPARE(names(), expected);
    QTRY_COMPARE(m_backend->currentId(), NameA);
    QCOMPARE(stateName(), QStringLiteral("ready"));

    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QCOMPARE(stateName(), QStringLiteral("working"));
    QVERIFY(shows(m_backend->latestFrame(), Red));
    QCOMPARE(m_backend->latestFrame().size(), QSize(229, 172));

    m_backend->setCurrent(NameB);
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Green));
    const int before = m_watcher.frames;
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames > before + 20, LongMs);
    m_backend->stop();
    QVERIFY(!m_backend->delivers());
    QVERIFY(m_backend->latestFrame().isNull());
}

void tst_PipeWireFrames::convertsEveryPixelFormat_data()
{
    QTest::addColumn<QString>("pixelFormat");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("padding");
    QTest::addColumn<QSize>("expected");
    const QSize usual(640, 360);
    const QSize fitted(306, 172);
    for (const char* format :
         {"YUY2", "UYVY", "NV12", "I420", "RGB", "BGR", "RGBx", "BGRx", "xRGB", "xBGR", "MJPG"}) {
        QTest::newRow(format) << QString::fromLatin1(format) << usual << 0 << fitted;
    }
    QTest::newRow("padded rows") << QStringLiteral("YUY2") << usual << 64 << fitted;
    QTest::newRow("padded planes") << QStringLiteral("NV12") << usual << 64 << fitted;
    for (const char* format : {"YUY2", "NV12", "I420", "RGB", "MJPG"}) {
        QTest::newRow(qPrintable(QStringLiteral("odd ") + QLatin1String(format)))
            << QString::fromLatin1(format) << QSize(333, 187) << 0 << fitted;
    }
    QTest::newRow("smaller than the preview")
        << QStringLiteral("YUY2") << QSize(161, 99) << 0 << QSize(161, 99);
}

void tst_PipeWireFrames::convertsEveryPixelFormat()
{
    QFETCH(QString, pixelFormat);
    QFETCH(QSize, size);
    QFETCH(int, padding);
    QFETCH(QSize, expected);
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--pixel-format"), pixelFormat,
                                QStringLiteral("--width"), QString::number(size.width()),
                                QStringLiteral("--height"), QString::number(size.height()),
                                QStringLiteral("--padding"), QString::number(padding)});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const QImage frame = m_backend->latestFrame();
    QCOMPARE(frame.size(), expected);
    QCOMPARE(frame.format(), QImage::Format_RGB32);
    QVERIFY(shows(frame, Red));
    // The blue band is at the camera's left, so at the right of a self-view.
    QVERIFY(isNear(frame.pixel(frame.width() - 6, frame.height() / 2), Blue));
    QVERIFY(!isNear(frame.pixel(6, frame.height() / 2), Blue));
}

void tst_PipeWireFrames::uprightsTurnedSensors_data()
{
    QTest::addColumn<int>("transform");
    QTest::addColumn<QSize>("expected");
    QTest::addColumn<QPointF>("band"); // its expected place, in shares of the frame
    const QSize wide(306, 172);
    const QSize tall(97, 172);
    QTest::newRow("upright") << 0 << wide << QPointF(0.98, 0.5);
    QTest::newRow("90") << 1 << tall << QPointF(0.5, 0.02);
    QTest::newRow("180") << 2 << wide << QPointF(0.02, 0.5);
    QTest::newRow("270") << 3 << tall << QPointF(0.5, 0.98);
    QTest::newRow("flipped") << 4 << wide << QPointF(0.02, 0.5);
    QTest::newRow("flipped 90") << 5 << tall << QPointF(0.5, 0.02);
    QTest::newRow("flipped 180") << 6 << wide << QPointF(0.98, 0.5);
    QTest::newRow("flipped 270") << 7 << tall << QPointF(0.5, 0.98);
}

void tst_PipeWireFrames::uprightsTurnedSensors()
{
    QFETCH(int, transform);
    QFETCH(QSize, expected);
    QFETCH(QPointF, band);
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--height"), QStringLiteral("360"),
                                QStringLiteral("--transform"), QString::number(transform)});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    const QImage frame = m_backend->latestFrame();
    QCOMPARE(frame.size(), expected);
    QVERIFY(
        isNear(frame.pixel(int(band.x() * frame.width()), int(band.y() * frame.height())), Blue));
}

void tst_PipeWireFrames::mapsDriverMemory()
{
    const Camera camera =
        plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--driver-memory")});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY(shows(m_backend->latestFrame(), Red));
    m_backend.reset();
    QTRY_COMPARE(cameraThreads(), 0);
    QVERIFY(readingsBegun > 0);
    QCOMPARE(readingsEnded.load(), readingsBegun.load());
}

void tst_PipeWireFrames::followsFormatChanges()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), QSize(229, 172), LongMs);
    camera->command("size 320x180");
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), PreviewSize, LongMs);
    camera->command("size 1281x721");
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), QSize(306, 172), LongMs);
    QTRY_VERIFY(shows(m_backend->latestFrame(), Red));
    QTRY_VERIFY(m_backend->delivers());
    // The preview may change its size, too.
    m_backend->setOutputSize(2 * PreviewSize);
    QTRY_COMPARE(m_backend->latestFrame().size(), QSize(611, 344));
}

void tst_PipeWireFrames::choosesTheMode_data()
{
    QTest::addColumn<QString>("modes");
    QTest::addColumn<QByteArray>("agreed");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const char* modes, const char* agreed, const char* told) {
        QTest::newRow(name) << QString::fromLatin1(modes) << QByteArray(agreed)
                            << QString::fromLatin1(told);
    };
    row("webcam",
        "YUY2:1920x1080@5,YUY2:640x480@30,YUY2:320x240@30,MJPG:1920x1080@30,MJPG:320x240@30",
        "size 320x240 rate 30 raw",
        "YUY2 1920x1080 5/s, MJPG 1920x1080 30/s, YUY2 640x480 30/s, YUY2 320x240 30/s, "
        "MJPG 320x240 30/s");
    row("1080p stick", "YUY2:1920x1080@5,MJPG:1920x1080@30,MJPG:1280x720@30",
        "size 1280x720 rate 30 jpeg",
        "YUY2 1920x1080 5/s, MJPG 1920x1080 30/s, MJPG 1280x720 30/s");
    row("4K", "NV12:3840x2160@30,NV12:1920x1080@30,MJPG:640x360@30", "size 1920x1080 rate 30 raw",
        "NV12 3840x2160 30/s, NV12 1920x1080 30/s, MJPG 640x360 30/s");
    row("slow", "YUY2:1280x720@10,YUY2:640x480@15", "size 640x480 rate 15 raw",
        "YUY2 1280x720 10/s, YUY2 640x480 15/s");
    row("small", "YUY2:160x120@30,YUY2:176x144@30", "size 176x144 rate 30 raw",
        "YUY2 176x144 30/s, YUY2 160x120 30/s");
    row("infrared, too", "GRAY8:640x360@30,MJPG:1280x720@30", "size 1280x720 rate 30 jpeg",
        "MJPG 1280x720 30/s");
    row("rates", "YUY2:640x480@60,YUY2:640x480@30,YUY2:640x480@15", "size 640x480 rate 30 raw",
        "YUY2 640x480 60/s");
}

void tst_PipeWireFrames::choosesTheMode()
{
    QFETCH(QString, modes);
    QFETCH(QByteArray, agreed);
    const Camera camera = plug(NameA, QStringLiteral("Camera"), {QStringLiteral("--modes"), modes});
    makeBackend();
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_backend->delivers(), LongMs);
    QVERIFY2(camera->output().contains(agreed), camera->output().constData());
    QVERIFY(shows(m_backend->latestFrame(), Red));
    m_backend->stop();
    QTEST(figures().value(QStringLiteral("modes")).toString(), "told");
}

void tst_PipeWireFrames::changesTheModeForASharperScreen()
{
    const Camera camera =
        plug(NameA, QStringLiteral("Camera"),
             {QStringLiteral("--modes"), QStringLiteral("YUY2:1280x720@30,YUY2:320x180@30")});
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), PreviewSize, LongMs);
    QVERIFY(camera->output().contains("size 320x180"));
    m_backend->setOutputSize(2 * PreviewSize);
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), 2 * PreviewSize, LongMs);
    QVERIFY(camera->output().contains("size 1280x720"));
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

void tst_PipeWireFrames::recordsMeasurements()
{
    const Camera camera = plug(NameA, QStringLiteral("Camera"),
                               {QStringLiteral("--color"), QStringLiteral("808080")});
    makeBackend();
    QTRY_COMPARE_WITH_TIMEOUT(ids().size(), 1, LongMs);
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames >= 30, LongMs);
    m_backend->stop();
    QJsonObject measured = figures();
    QCOMPARE(measured.value(QLatin1String("state")).toString(), QStringLiteral("working"));
    QCOMPARE(measured.value(QLatin1String("device")).toString(), QStringLiteral("Camera"));
    QCOMPARE(measured.value(QLatin1String("width")).toInt(), 640);
    QCOMPARE(measured.value(QLatin1String("height")).toInt(), 480);
    const double rate = measured.value(QLatin1String("rate")).toDouble();
    QVERIFY2(rate > 25.0 && rate < 35.0, qPrintable(QString::number(rate)));
    QVERIFY(measured.value(QLatin1String("firstPictureMs")).toInt() < 1000);
    QCOMPARE(measured.value(QLatin1String("blackShare")).toDouble(), 0.0);
    QCOMPARE(measured.value(QLatin1String("frozenShare")).toDouble(), 0.0);
    QVERIFY(qAbs(measured.value(QLatin1String("brightness")).toDouble() - 0.54) < 0.08);

    camera->command("frozen");
    camera->command("black");
    m_watcher.frames = 0;
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames >= 10, LongMs);
    m_backend->stop();
    measured = figures();
    QCOMPARE(measured.value(QLatin1String("blackShare")).toDouble(), 1.0);
    QCOMPARE(measured.value(QLatin1String("frozenShare")).toDouble(), 1.0);
    QCOMPARE(measured.value(QLatin1String("brightness")).toDouble(), 0.0);

    m_watcher.frames = 0;
    m_backend->start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames >= 1, LongMs);
    m_backend->setCurrent({}); // for no camera there are no figures
    m_backend->stop();
    QCOMPARE(figures(), (QJsonObject{{QStringLiteral("state"), QStringLiteral("off")},
                                     {QStringLiteral("cause"), QJsonValue()},
                                     {QStringLiteral("device"), QString()}}));
}

QTEST_GUILESS_MAIN(tst_PipeWireFrames)
#include "tst_PipeWireFrames.moc"
