// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/devices/camera/DeviceCameraSystem.h"
#include "platform/devices/camera/PreferredFeed.h"
#include "platform/devices/pipewire/PipeWireFeed.h"
#include "platform/devices/v4l2/V4l2Parts.h"
#include "platform/devices/v4l2/VideoDevices.h"
#include "tests/devices/ThreadCount.h"
#include "tests/devices/v4l2/TestSources.h"
#include "tests/devices/v4l2/VirtualSockets.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/CameraWatcher.h"
#include "tests/support/DeviceTexts.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/PipeWireServer.h"
#include "tests/support/TestProcess.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QtTest>
#include <gst/gst.h>

using namespace Platform;
using namespace TestSupport;

namespace {

constexpr int LongMs = 8000;
constexpr int AtOnceMs = 100;
constexpr int ReconnectsMs = 1000; // for a few attempts to connect
const QSize PreviewSize(306, 172);
const QString PlaceA = QStringLiteral("pci-0000:00:14.0-usb-0:5:1.0");
const QString PlaceB = QStringLiteral("pci-0000:00:14.0-usb-0:6:1.0");
// Few and small frames, so that a busy machine can keep up.
const QByteArray Modest(" ! capsfilter caps=video/x-raw,width=320,height=240,framerate=10/1");

VideoDevices::Properties device(const QString& path, const QString& place, const QString& name,
                                const QString& capabilities = QStringLiteral(":capture:"))
{
    return {{QStringLiteral("DEVNAME"), path},
            {QStringLiteral("ID_PATH"), place},
            {QStringLiteral("ID_V4L_PRODUCT"), name},
            {QStringLiteral("ID_V4L_CAPABILITIES"), capabilities}};
}

int threads()
{
    return QDir(QStringLiteral("/proc/self/task"))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
        .size();
}

QStringList openFiles()
{
    QStringList result;
    const QDir folder(QStringLiteral("/proc/self/fd"));
    const QStringList names =
        folder.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System);
    for (const QString& name : names) {
        result << name + QStringLiteral(" ") + QFile::symLinkTarget(folder.filePath(name));
    }
    return result;
}

bool isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 24;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

} // namespace

// Cameras on a machine without a PipeWire server. GStreamer's test source takes the place of the
// kernel's devices; everything above them is real.
class tst_V4l2Cameras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void staysAwayIfPipeWireAnswers();
    void isLeftWhenPipeWireStartsLate();
    void isUsedWhilePipeWireListsNone();
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
    void noticesSilence();
    void reportsErrors_data();
    void reportsErrors();
    void namesTheProgramThatHasTheDeviceFile();
    void reportsMissingSource();
    void reportsSourceThatDoesNotStart();
    void reportsFormatsThatCantBeShown_data();
    void reportsFormatsThatCantBeShown();
    void waitsForHungStart();
    void leavesHungStartAtOnce();
    void leavesNothingBehind();

private:
    void makeBackend();
    QStringList ids() const { return idsOf(m_backend->devices()); }
    QStringList names() const { return namesOf(m_backend->devices()); }
    QString stateName() const { return toString(m_backend->state()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    MemoryReport m_report;
    CameraWatcher m_watcher;
    std::unique_ptr<VirtualSockets> m_sockets;
    std::function<GstElement*(const QString&)> m_makeSource;
    std::unique_ptr<DeviceCameraSystem> m_system;
    std::unique_ptr<CameraBackend> m_backend;
};

void tst_V4l2Cameras::initTestCase()
{
    gst_init(nullptr, nullptr);
}

void tst_V4l2Cameras::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toUtf8()); // where no server is
    qputenv("PIPEWIRE_RUNTIME_DIR", m_folder->path().toUtf8());
    m_report = MemoryReport();
    m_watcher = CameraWatcher();
    m_sockets = std::make_unique<VirtualSockets>();
    m_makeSource = [](const QString&) { return makeElement(Bars); };
}

void tst_V4l2Cameras::cleanup()
{
    m_backend.reset();
    m_system.reset();
    QTRY_COMPARE(threadCount("v4l2 cameras"), 0);
    QTRY_COMPARE(threadCount("v4l2 stream"), 0);
    QTRY_COMPARE(sourcesAlive(), 0);
    QVERIFY(FileWriter::waitForWritten(LongMs));
}

void tst_V4l2Cameras::staysAwayIfPipeWireAnswers()
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
void tst_V4l2Cameras::isLeftWhenPipeWireStartsLate()
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

void tst_V4l2Cameras::isUsedWhilePipeWireListsNone()
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

void tst_V4l2Cameras::noticesSilence()
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

void tst_V4l2Cameras::reportsErrors_data()
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

void tst_V4l2Cameras::reportsErrors()
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
void tst_V4l2Cameras::namesTheProgramThatHasTheDeviceFile()
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

void tst_V4l2Cameras::reportsMissingSource()
{
    m_makeSource = [](const QString&) { return nullptr; };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("failed"), LongMs);
}

void tst_V4l2Cameras::reportsSourceThatDoesNotStart()
{
    m_makeSource = [](const QString&) { return makeElement("filesrc location=/absent/camera"); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("failed"), LongMs);
}

void tst_V4l2Cameras::reportsFormatsThatCantBeShown_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("no such format") << QByteArray("videotestsrc is-live=true ! capsfilter "
                                                  "caps=video/x-raw,format=GRAY16_LE");
    QTest::newRow("broken JPEGs") << QByteArray(
        "fakesrc sizetype=fixed sizemax=2000 do-timestamp=1 "
        "is-live=true datarate=60000 ! capsfilter "
        "caps=image/jpeg,width=320,height=240");
}

void tst_V4l2Cameras::reportsFormatsThatCantBeShown()
{
    QFETCH(QByteArray, source);
    m_makeSource = [source](const QString&) { return makeElement(source); };
    m_sockets->plug(device(QStringLiteral("/dev/video0"), PlaceA, QStringLiteral("Camera")));
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("unreadable"), LongMs);
    QVERIFY(m_backend->cause().kind == CameraCause::Kind::Unreadable);
}

void tst_V4l2Cameras::waitsForHungStart()
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
    QCOMPARE(threadCount("v4l2 stream"), 2);
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

void tst_V4l2Cameras::makeBackend()
{
    V4l2Parts parts;
    parts.makeDevices = [this] { return m_sockets->makeDevices(); };
    parts.makeSource = m_makeSource;
    m_system = std::make_unique<DeviceCameraSystem>(m_folder->path(), m_report, pipeWireFeedMaker(),
                                                    v4l2FeedMaker(parts));
    m_backend = m_system->createCamera(m_watcher);
    m_backend->setOutputSize(PreviewSize);
}

QTEST_GUILESS_MAIN(tst_V4l2Cameras)
#include "tst_V4l2Cameras.moc"
