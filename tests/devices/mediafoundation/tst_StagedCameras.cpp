// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"
#include "tests/devices/mediafoundation/CameraReader.h"
#include "tests/devices/windowscameras/StagedCameras.h"

#include <QAbstractNativeEventFilter>
#include <QWindow>
#include <QtTest>
#include <future>

// Must follow windows.h.
#include <mferror.h>

using namespace Platform;
using namespace TestSupport;

namespace {

const QString Link = QStringLiteral("\\\\?\\usb#a");
const QString OtherLink = QStringLiteral("\\\\?\\usb#b");

// The letters of the four quadrants, row by row; the converter mirrors them.
QString quadrantsOf(const QByteArray& bytes, PixelFormat format, const QSize& size, int stride)
{
    FrameView view;
    view.planeCount = 1;
    view.planes[0] = {reinterpret_cast<const uchar*>(bytes.constData()),
                      static_cast<std::size_t>(bytes.size()), stride};
    FrameConverter converter;
    const QImage image = converter.convert({format, YuvColor::Bt601, size}, view, {}, {});
    QString letters;
    for (const QPoint& place : {QPoint(3, 1), QPoint(1, 1), QPoint(3, 3), QPoint(1, 3)}) {
        const QRgb pixel = image.pixel(size.width() * place.x() / 4, size.height() * place.y() / 4);
        const bool isRed = qRed(pixel) > 220;
        const bool isGreen = qGreen(pixel) > 220;
        const bool isBlue = qBlue(pixel) > 220;
        letters += isRed && isGreen && isBlue ? QLatin1Char('w')
                   : isRed                    ? QLatin1Char('r')
                   : isGreen                  ? QLatin1Char('g')
                   : isBlue                   ? QLatin1Char('b')
                                              : QLatin1Char('?');
    }
    return letters;
}

} // namespace

class tst_StagedCameras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void listsWhatIsPlugged();
    void sendsKnownColors_data();
    void sendsKnownColors();
    void sendsAtItsRate();
    void describesItsModes();
    void refuses();
    void hangsUntilToldToGoOn();
    void hangsInItsStart();
    void goesSilent();
    void breaksFrames();
    void endsItsStream();
    void diesWithItsPlug();
    void tellsAllWindowsOfChanges();
    void readsCamerasFromFile();
};

void tst_StagedCameras::initTestCase()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    QVERIFY(SUCCEEDED(MFStartup(MF_VERSION, MFSTARTUP_LITE)));
}

void tst_StagedCameras::cleanupTestCase()
{
    MFShutdown();
    CoUninitialize();
}

void tst_StagedCameras::listsWhatIsPlugged()
{
    QCOMPARE(CameraReader::names(), QStringList());
    StagedCameras cameras;
    const QString name = QStringLiteral("摄像头 Камера");
    cameras.plug(Link, name);
    cameras.plug(OtherLink, QStringLiteral("B"));
    QCOMPARE(CameraReader::names(), QStringList({name, QStringLiteral("B")}));
    cameras.unplug(Link);
    cameras.setName(OtherLink, QString());
    QCOMPARE(CameraReader::names(), QStringList(QStringLiteral("none")));
    QCOMPARE(cameras.lists(), 2);
    QCOMPARE(cameras.objects(), 0);
}

void tst_StagedCameras::sendsKnownColors_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("pixelFormat");
    QTest::addColumn<int>("stride");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* format, PixelFormat pixelFormat, int stride,
                        const char* expected) {
        QTest::addRow("%s %d", format, stride)
            << QByteArray(format) << int(pixelFormat) << stride << QString::fromLatin1(expected);
    };
    row("YUY2", PixelFormat::Yuy2, 0, "rgbw");
    row("YUY2", PixelFormat::Yuy2, 1344, "rgbw");
    row("NV12", PixelFormat::Nv12, 0, "rgbw");
    row("MJPG", PixelFormat::Mjpg, 0, "rgbw");
    row("RGB32", PixelFormat::Bgrx, 0, "rgbw");
    row("RGB32", PixelFormat::Bgrx, -2560, "bwrg");
}

void tst_StagedCameras::sendsKnownColors()
{
    QFETCH(QByteArray, format);
    QFETCH(int, pixelFormat);
    QFETCH(int, stride);
    StagedMode mode;
    mode.format = format;
    mode.stride = stride;
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"), {mode});
    {
        CameraReader reader;
        QCOMPARE(reader.open(), S_OK);
        QCOMPARE(cameras.opened(Link), 1);
        const QByteArray first = reader.read();
        QTEST(quadrantsOf(first, static_cast<PixelFormat>(pixelFormat), mode.size, qAbs(stride)),
              "expected");
        QVERIFY(reader.read() != first); // it blinks
    }
    QCOMPARE(cameras.opened(Link), 0);
    QTRY_COMPARE(cameras.objects(), 0); // the system lets go of them on its own threads
}

void tst_StagedCameras::sendsAtItsRate()
{
    constexpr int Frames = 30;
    StagedMode mode;
    mode.rateNumerator = 60;
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"), {mode});
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < Frames; ++i) {
        QVERIFY(!reader.read().isEmpty());
    }
    QVERIFY2(timer.elapsed() >= 1000 * (Frames - 1) / 60,
             qPrintable(QString::number(timer.elapsed())));
}

void tst_StagedCameras::describesItsModes()
{
    StagedMode bottomUp{"RGB32", QSize(320, 240), 15, 1, -1280, 0, 0, 0};
    StagedMode wide{"NV12",
                    QSize(1920, 1080),
                    30000,
                    1001,
                    0,
                    MFNominalRange_0_255,
                    MFVideoTransferMatrix_BT709,
                    0};
    StagedMode unknown{"H264", QSize(1280, 720), 30, 1, 0, 0, 0, 0};
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"), {bottomUp, wide, unknown});
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    QCOMPARE(reader.modes(),
             QStringList({QStringLiteral("22 320x240 15/1 stride -1280"),
                          QStringLiteral("NV12 1920x1080 30000/1001 range 1 matrix 1"),
                          QStringLiteral("H264 1280x720 30/1")}));
}

void tst_StagedCameras::refuses()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    cameras.refuseList(E_OUTOFMEMORY);
    QCOMPARE(CameraReader().open(), E_OUTOFMEMORY);
    cameras.refuseList(S_OK);
    cameras.refuseActivation(Link, E_ACCESSDENIED);
    QCOMPARE(CameraReader().open(), E_ACCESSDENIED);
    cameras.refuseActivation(Link, S_OK);
    cameras.refuseReading(Link, MF_E_INVALIDREQUEST);
    QCOMPARE(CameraReader().open(), MF_E_INVALIDREQUEST);
    cameras.refuseReading(Link, S_OK);
    QCOMPARE(CameraReader().open(), S_OK);
    QCOMPARE(cameras.activations(Link), 3);
}

void tst_StagedCameras::hangsUntilToldToGoOn()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    cameras.hangActivation(Link, true);
    auto opening = std::async(std::launch::async, [] { return CameraReader().open(); });
    QTRY_COMPARE(cameras.hangingCalls(), 1);
    cameras.hangShutdown(Link, true);
    cameras.hangActivation(Link, false);
    QTRY_COMPARE(cameras.opened(Link), 1);
    QTRY_COMPARE(cameras.hangingCalls(), 1);
    cameras.hangShutdown(Link, false);
    QCOMPARE(opening.get(), S_OK);
    QCOMPARE(cameras.hangingCalls(), 0);
}

void tst_StagedCameras::hangsInItsStart()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    cameras.hangStart(Link, true);
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    QVERIFY(reader.read(std::chrono::milliseconds(200)).isEmpty());
    QCOMPARE(cameras.hangingCalls(), 1);
    cameras.hangStart(Link, false);
    QVERIFY(!reader.read().isEmpty());
}

void tst_StagedCameras::goesSilent()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    QVERIFY(!reader.read().isEmpty());
    cameras.stall(Link, true);
    while (!reader.read(std::chrono::milliseconds(200)).isEmpty()) {
    }
    cameras.stall(Link, false);
    QVERIFY(!reader.read().isEmpty());
}

void tst_StagedCameras::breaksFrames()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    const int whole = reader.read().size();
    cameras.breakFrames(Link, true);
    QTRY_COMPARE(reader.read().size(), whole / 3);
}

void tst_StagedCameras::endsItsStream()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    CameraReader reader;
    QCOMPARE(reader.open(), S_OK);
    QVERIFY(!reader.read().isEmpty());
    cameras.endStream(Link);
    while (!reader.read().isEmpty()) {
    }
    QVERIFY(reader.isAtEnd());
}

void tst_StagedCameras::diesWithItsPlug()
{
    StagedCameras cameras;
    cameras.plug(Link, QStringLiteral("A"));
    CameraReader old;
    QCOMPARE(old.open(), S_OK);
    QVERIFY(!old.read().isEmpty());
    cameras.unplug(Link);
    cameras.plug(Link, QStringLiteral("A"));
    CameraReader fresh;
    QCOMPARE(fresh.open(), S_OK);
    QVERIFY(!fresh.read().isEmpty());
    while (!old.read(std::chrono::milliseconds(200)).isEmpty()) {
    }
    QVERIFY(!fresh.read().isEmpty());
}

void tst_StagedCameras::tellsAllWindowsOfChanges()
{
    class Filter final : public QAbstractNativeEventFilter
    {
    public:
        bool nativeEventFilter(const QByteArray&, void* message, long*) override
        {
            changes += static_cast<MSG*>(message)->message == WM_DEVICECHANGE ? 1 : 0;
            return false;
        }
        int changes = 0;
    };
    Filter filter;
    QCoreApplication::instance()->installNativeEventFilter(&filter);
    QWindow window;
    window.create();
    StagedCameras::castDeviceChange();
    QVERIFY(filter.changes > 0);
    QCoreApplication::instance()->removeNativeEventFilter(&filter);
}

void tst_StagedCameras::readsCamerasFromFile()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("cameras.json")));
    const auto write = [&file](const QByteArray& content) {
        file.open(QIODevice::WriteOnly);
        file.write(content);
        file.close();
    };
    write(R"([{ "link": "a", "name": "Камера", "activationError": 2147942405,
                "modes": [{ "format": "MJPG", "size": [320, 240], "rate": 25 }] }])");
    qputenv("ENVCHECK_STAGED_CAMERAS", QFile::encodeName(file.fileName()));
    QCOMPARE(CameraReader::names(), QStringList(QStringLiteral("Камера")));
    QCOMPARE(CameraReader().open(), E_ACCESSDENIED);
    write(R"([{ "link": "a", "name": "Камера",
                "modes": [{ "format": "MJPG", "size": [320, 240], "rate": 25 }] }])");
    {
        CameraReader reader;
        QCOMPARE(reader.open(), S_OK);
        QCOMPARE(reader.modes(), QStringList(QStringLiteral("MJPG 320x240 25/1")));
        QVERIFY(!reader.read().isEmpty());
    }
    write("[]");
    QCOMPARE(CameraReader::names(), QStringList());
}

QTEST_MAIN(tst_StagedCameras)
#include "tst_StagedCameras.moc"
