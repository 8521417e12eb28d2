// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"
#include "tests/devices/camera/JpegSample.h"
#include "tests/support/CameraPattern.h"

#include <QLinearGradient>
#include <QPainter>
#include <QProcess>
#include <QtTest>

using namespace Platform;
using namespace TestSupport;

namespace {

FrameView viewOf(const QByteArray& bytes, int stride)
{
    FrameView view;
    view.planeCount = 1;
    view.planes[0] = {reinterpret_cast<const uchar*>(bytes.constData()),
                      static_cast<std::size_t>(bytes.size()), stride};
    return view;
}

// 4 x 2 pixels: red, green, blue, white; blue, blue, red, red.
QByteArray smallFrame()
{
    const QRgb red = qRgb(255, 0, 0);
    const QRgb green = qRgb(0, 255, 0);
    const QRgb blue = qRgb(0, 0, 255);
    const QRgb white = qRgb(255, 255, 255);
    QByteArray result;
    for (const QRgb pixel : {red, green, blue, white, blue, blue, red, red}) {
        result.append(static_cast<char>(qBlue(pixel)));
        result.append(static_cast<char>(qGreen(pixel)));
        result.append(static_cast<char>(qRed(pixel)));
        result.append('\0');
    }
    return result;
}

const FrameFormat SmallFormat{PixelFormat::Bgrx, YuvColor::Bt601, QSize(4, 2)};

// The first letter of each pixel's color, row by row.
QString letters(const QImage& frame)
{
    QString result;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const QRgb pixel = frame.pixel(x, y) & RGB_MASK;
            result += pixel == 0xff0000   ? QLatin1Char('r')
                      : pixel == 0x00ff00 ? QLatin1Char('g')
                      : pixel == 0x0000ff ? QLatin1Char('b')
                                          : QLatin1Char('w');
        }
        result += QLatin1Char('/');
    }
    return result;
}

bool isNear(QRgb actual, QRgb expected)
{
    constexpr int Tolerance = 12;
    return qAbs(qRed(actual) - qRed(expected)) <= Tolerance &&
           qAbs(qGreen(actual) - qGreen(expected)) <= Tolerance &&
           qAbs(qBlue(actual) - qBlue(expected)) <= Tolerance;
}

// Soft shades, slanted edges and thin lines in all colors.
QImage sceneOf(const QSize& size)
{
    QImage result(size, QImage::Format_RGB32);
    QLinearGradient shades(0, 0, size.width(), size.height());
    shades.setColorAt(0, QColor(210, 190, 160));
    shades.setColorAt(0.5, QColor(70, 110, 150));
    shades.setColorAt(1, QColor(30, 60, 40));
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(result.rect(), shades);
    painter.scale(size.width() / 100.0, size.height() / 100.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(220, 170, 150));
    painter.drawEllipse(QRectF(35, 15, 30, 50));
    painter.setBrush(QColor(150, 30, 40));
    painter.drawPolygon(QPolygonF({{20, 100}, {50, 62}, {85, 100}}));
    painter.setPen(QPen(Qt::white, 0.8));
    painter.drawLine(QPointF(2, 90), QPointF(98, 5));
    return result;
}

// The matrix of BT.601, for video's range.
void toYuv(QRgb pixel, double& y, double& u, double& v)
{
    const double red = qRed(pixel);
    const double green = qGreen(pixel);
    const double blue = qBlue(pixel);
    y = 16 + 0.257 * red + 0.504 * green + 0.098 * blue;
    u = 128 - 0.148 * red - 0.291 * green + 0.439 * blue;
    v = 128 + 0.439 * red - 0.368 * green - 0.071 * blue;
}

// One plane of a scene, 0 to 2 for Y, U and V: a sample for each block of pixels.
QByteArray planeOf(const QImage& scene, int plane, const QSize& block)
{
    QByteArray result;
    for (int top = 0; top < scene.height(); top += block.height()) {
        for (int left = 0; left < scene.width(); left += block.width()) {
            double yuv[3] = {};
            toYuv(scene.pixel(left, top), yuv[0], yuv[1], yuv[2]);
            result.append(static_cast<char>(qRound(yuv[plane])));
        }
    }
    return result;
}

// Mixes samples of planes: each letter of the order is Y, U or V.
QByteArray packed(const QImage& scene, const char* order)
{
    const QImage even = scene.copy(0, 0, (scene.width() + 1) / 2 * 2, scene.height());
    const QByteArray y = planeOf(even, 0, {1, 1});
    const QByteArray u = planeOf(even, 1, {2, 1});
    const QByteArray v = planeOf(even, 2, {2, 1});
    QByteArray result;
    for (int i = 0; i < u.size(); ++i) {
        int luma = 2 * i;
        for (const char* letter = order; *letter != '\0'; ++letter) {
            result.append(*letter == 'Y' ? y.at(luma++) : *letter == 'U' ? u.at(i) : v.at(i));
        }
    }
    return result;
}

QByteArray semiPlanar(const QImage& scene)
{
    const QByteArray u = planeOf(scene, 1, {2, 2});
    const QByteArray v = planeOf(scene, 2, {2, 2});
    QByteArray result = planeOf(scene, 0, {1, 1});
    for (int i = 0; i < u.size(); ++i) {
        result.append(u.at(i)).append(v.at(i));
    }
    return result;
}

// Each letter of the order is R, G, B or an unused byte.
QByteArray rgb(const QImage& scene, const char* order)
{
    QByteArray result;
    for (int y = 0; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            const QRgb pixel = scene.pixel(x, y);
            for (const char* letter = order; *letter != '\0'; ++letter) {
                const int value = *letter == 'R'   ? qRed(pixel)
                                  : *letter == 'G' ? qGreen(pixel)
                                  : *letter == 'B' ? qBlue(pixel)
                                                   : 0x5a;
                result.append(static_cast<char>(value));
            }
        }
    }
    return result;
}

QByteArray encoded(const QImage& scene, PixelFormat format)
{
    switch (format) {
    case PixelFormat::None:
        return {};
    case PixelFormat::Yuy2:
        return packed(scene, "YUYV");
    case PixelFormat::Uyvy:
        return packed(scene, "UYVY");
    case PixelFormat::Nv12:
        return semiPlanar(scene);
    case PixelFormat::I420:
        return planeOf(scene, 0, {1, 1}) + planeOf(scene, 1, {2, 2}) + planeOf(scene, 2, {2, 2});
    case PixelFormat::Bgrx:
        return rgb(scene, "BGRx");
    case PixelFormat::Rgbx:
        return rgb(scene, "RGBx");
    case PixelFormat::Xrgb:
        return rgb(scene, "xRGB");
    case PixelFormat::Xbgr:
        return rgb(scene, "xBGR");
    case PixelFormat::Rgb:
        return rgb(scene, "RGB");
    case PixelFormat::Bgr:
        return rgb(scene, "BGR");
    case PixelFormat::Mjpg:
        return encodeJpeg(scene, 92);
    }
    return {};
}

} // namespace

class tst_FrameConverter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void orients_data();
    void orients();
    void takesSeparatePlanes();
    void honorsTheColorMatrix_data();
    void honorsTheColorMatrix();
    void refusesShortFrames_data();
    void refusesShortFrames();
    void refusesHugeStrides_data();
    void refusesHugeStrides();
    void refusesAbsurdSizes();
    void refusesBrokenJpegs();
    void refusesJpegSegmentBeyondTheEnd();
    void readsEverySampling_data();
    void readsEverySampling();
    void readsTheJpegsOfAnEncoder_data();
    void readsTheJpegsOfAnEncoder();
    void trustsTheJpegsOwnSize();
    void averagesWhatItScales();
    void looksLikeTheSource_data();
    void looksLikeTheSource();
};

void tst_FrameConverter::fits_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSize>("bound");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("wide") << QSize(1280, 720) << QSize(306, 172) << QSize(306, 172);
    QTest::newRow("4:3") << QSize(640, 480) << QSize(306, 172) << QSize(229, 172);
    QTest::newRow("tall") << QSize(480, 640) << QSize(306, 172) << QSize(129, 172);
    QTest::newRow("never larger") << QSize(160, 120) << QSize(306, 172) << QSize(160, 120);
    QTest::newRow("thin") << QSize(4000, 2) << QSize(306, 172) << QSize(306, 1);
    QTest::newRow("no bound") << QSize(640, 480) << QSize() << QSize(640, 480);
}

void tst_FrameConverter::fits()
{
    QFETCH(QSize, source);
    QFETCH(QSize, bound);
    QTEST(FrameConverter::fittedSize(source, bound), "expected");
}

void tst_FrameConverter::orients_data()
{
    QTest::addColumn<int>("quarterTurns");
    QTest::addColumn<bool>("isFlipped");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int turns, bool isFlipped, const char* expected) {
        QTest::newRow(name) << turns << isFlipped << QString::fromLatin1(expected);
    };
    // in the buffer: rgbw/bbrr
    row("mirrored", 0, false, "wbgr/rrbb/");
    row("90", 1, false, "rb/gb/br/wr/");
    row("180", 2, false, "bbrr/rgbw/");
    row("270", 3, false, "rw/rb/bg/br/");
    row("flipped", 0, true, "rgbw/bbrr/");
    row("flipped 90", 1, true, "br/bg/rb/rw/");
    row("flipped 180", 2, true, "rrbb/wbgr/");
    row("flipped 270", 3, true, "wr/br/gb/rb/");
}

void tst_FrameConverter::orients()
{
    QFETCH(int, quarterTurns);
    QFETCH(bool, isFlipped);
    const QByteArray bytes = smallFrame();
    FrameConverter converter;
    const QImage result =
        converter.convert(SmallFormat, viewOf(bytes, 0), {quarterTurns, isFlipped}, {});
    QTEST(letters(result), "expected");
}

void tst_FrameConverter::takesSeparatePlanes()
{
    const QSize size(64, 32);
    const CameraPattern pattern(CameraPattern::I420, size, 0);
    const QByteArray bytes = pattern.frame(0);
    const FrameFormat format{PixelFormat::I420, YuvColor::Bt601, size};
    const auto* const y = reinterpret_cast<const uchar*>(bytes.constData());
    FrameView view;
    view.planeCount = 3;
    view.planes[0] = {y, 64 * 32, 64};
    view.planes[1] = {y + 64 * 32, 32 * 16, 32};
    view.planes[2] = {y + 64 * 32 + 32 * 16, 32 * 16, 32};
    FrameConverter converter;
    const QImage separate = converter.convert(format, view, {}, {}).copy();
    QVERIFY(!separate.isNull());
    QCOMPARE(separate, converter.convert(format, viewOf(bytes, 64), {}, {}));
}

void tst_FrameConverter::honorsTheColorMatrix_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<int>("expected"); // gray of a luma of 235
    QTest::newRow("601") << int(YuvColor::Bt601) << 255;
    QTest::newRow("601 full") << int(YuvColor::Bt601Full) << 235;
    QTest::newRow("709") << int(YuvColor::Bt709) << 255;
    QTest::newRow("709 full") << int(YuvColor::Bt709Full) << 235;
}

void tst_FrameConverter::honorsTheColorMatrix()
{
    QFETCH(int, color);
    const FrameFormat format{PixelFormat::I420, static_cast<YuvColor>(color), QSize(4, 4)};
    const QByteArray bytes = QByteArray(16, char(235)) + QByteArray(8, char(128));
    FrameConverter converter;
    const QImage result = converter.convert(format, viewOf(bytes, 4), {}, {});
    QTEST(qGreen(result.pixel(1, 1)), "expected");
}

void tst_FrameConverter::refusesShortFrames_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<int>("pixelFormat");
    const auto row = [](const char* name, CameraPattern::PixelFormat source, PixelFormat format) {
        QTest::newRow(name) << int(source) << int(format);
    };
    row("YUY2", CameraPattern::Yuy2, PixelFormat::Yuy2);
    row("UYVY", CameraPattern::Uyvy, PixelFormat::Uyvy);
    row("NV12", CameraPattern::Nv12, PixelFormat::Nv12);
    row("I420", CameraPattern::I420, PixelFormat::I420);
    row("RGB", CameraPattern::Rgb, PixelFormat::Rgb);
    row("BGRx", CameraPattern::Bgrx, PixelFormat::Bgrx);
}

void tst_FrameConverter::refusesShortFrames()
{
    QFETCH(int, source);
    QFETCH(int, pixelFormat);
    const QSize size(33, 17);
    const CameraPattern pattern(static_cast<CameraPattern::PixelFormat>(source), size, 0);
    const QByteArray bytes = pattern.frame(0);
    const FrameFormat format{static_cast<PixelFormat>(pixelFormat), YuvColor::Bt601, size};
    FrameConverter converter;
    QVERIFY(!converter.convert(format, viewOf(bytes, pattern.stride()), {}, {}).isNull());
    QVERIFY(
        converter.convert(format, viewOf(bytes.left(bytes.size() - 3), pattern.stride()), {}, {})
            .isNull());
    QVERIFY(converter.convert(format, viewOf(bytes.left(1), pattern.stride()), {}, {}).isNull());
    QVERIFY(converter.convert(format, viewOf(bytes, 1), {}, {}).isNull()); // rows overlap
    QVERIFY(converter.convert(format, FrameView(), {}, {}).isNull());
}

void tst_FrameConverter::refusesHugeStrides_data()
{
    refusesShortFrames_data();
}

// One row is within the frame, whatever the stride is; sums and products with it are not.
void tst_FrameConverter::refusesHugeStrides()
{
    QFETCH(int, pixelFormat);
    const QByteArray bytes(1024, 'x');
    FrameConverter converter;
    for (const int stride : {std::numeric_limits<int>::max(), 1 << 20, -1, -4096}) {
        for (const int planeCount : {1, 3}) {
            FrameView view = viewOf(bytes, stride);
            view.planes.fill(view.planes[0]);
            view.planeCount = planeCount;
            const FrameFormat format{static_cast<PixelFormat>(pixelFormat), YuvColor::Bt601,
                                     QSize(16, 1)};
            QVERIFY(converter.convert(format, view, {}, {}).isNull());
        }
    }
}

void tst_FrameConverter::refusesAbsurdSizes()
{
    const QByteArray bytes = smallFrame();
    FrameConverter converter;
    for (const QSize& size : {QSize(0, 2), QSize(4, -2), QSize(9000, 1), QSize(1, 9000)}) {
        const FrameFormat format{PixelFormat::Bgrx, YuvColor::Bt601, size};
        QVERIFY(converter.convert(format, viewOf(bytes, 0), {}, {}).isNull());
    }
}

void tst_FrameConverter::refusesBrokenJpegs()
{
    const QSize size(64, 48);
    const QByteArray bytes = CameraPattern(CameraPattern::Mjpg, size, 0).frame(0);
    const FrameFormat format{PixelFormat::Mjpg, YuvColor::Bt601, size};
    FrameConverter converter;
    QVERIFY(!converter.convert(format, viewOf(bytes, 0), {}, {}).isNull());
    QVERIFY(converter.convert(format, viewOf(bytes.left(20), 0), {}, {}).isNull());
    QVERIFY(converter.convert(format, viewOf(bytes.left(bytes.size() / 2), 0), {}, {}).isNull());
    QVERIFY(converter.convert(format, viewOf(QByteArray(2000, 'x'), 0), {}, {}).isNull());
    QVERIFY(!converter.convert(format, viewOf(bytes, 0), {}, {}).isNull());
}

// libjpeg's own way to skip a segment waits for the rest of it without end.
void tst_FrameConverter::refusesJpegSegmentBeyondTheEnd()
{
    const QByteArray jpeg = QByteArray::fromHex("ffd8ffe5fff0") + QByteArray(8, 'x');
    FrameConverter converter;
    const FrameFormat format{PixelFormat::Mjpg, YuvColor::Bt601, QSize(16, 16)};
    QVERIFY(converter.convert(format, viewOf(jpeg, 0), {}, {}).isNull());
}

void tst_FrameConverter::readsEverySampling_data()
{
    QTest::addColumn<JpegSample>("sample");
    const auto row = [](const char* name, JpegFactors luma, JpegFactors chroma) {
        QTest::newRow(name) << JpegSample{{luma, chroma}};
    };
    row("4:2:0", {2, 2}, {1, 1});
    row("4:2:2", {2, 1}, {1, 1});
    row("4:4:4", {1, 1}, {1, 1});
    row("4:1:1", {4, 1}, {1, 1});
    row("4:4:0", {1, 2}, {1, 1});
    row("4:2:2 with rows doubled", {2, 2}, {1, 2});
    row("4:4:0 with columns doubled", {2, 2}, {2, 1});
    row("4:4:4 with rows doubled", {1, 2}, {1, 2});
    row("4:1:0", {4, 2}, {1, 1});
    row("gray", {1, 1}, {0, 0});
}

void tst_FrameConverter::readsEverySampling()
{
    QFETCH(JpegSample, sample);
    const QByteArray bytes = sample.bytes(); // left half dark, right half bright and orange
    const FrameFormat format{PixelFormat::Mjpg, YuvColor::Bt601, JpegSample::Size};
    FrameConverter converter;
    for (const QSize& bound : {QSize(), JpegSample::Size / 2, JpegSample::Size / 7}) {
        const QImage image = converter.convert(format, viewOf(bytes, 0), {}, bound);
        QVERIFY(!image.isNull());
        const QSize size = FrameConverter::fittedSize(JpegSample::Size, bound);
        QCOMPARE(image.size(), size);
        const QRgb left = image.pixel(size.width() / 4, size.height() / 2);
        const QRgb right = image.pixel(size.width() * 3 / 4, size.height() / 2);
        QVERIFY(
            isNear(left, sample.sampling.isGray() ? JpegSample::BrightGray : JpegSample::Bright));
        QVERIFY(isNear(right, JpegSample::Dark)); // mirrored
    }
}

void tst_FrameConverter::readsTheJpegsOfAnEncoder_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"yuvj420p", "yuvj422p", "yuvj444p"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

void tst_FrameConverter::readsTheJpegsOfAnEncoder()
{
    QFETCH(QString, format);
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                  QStringLiteral("lavfi"), QStringLiteral("-i"),
                  QStringLiteral("color=0xE08020:size=128x96"), QStringLiteral("-frames:v"),
                  QStringLiteral("1"), QStringLiteral("-pix_fmt"), format, QStringLiteral("-f"),
                  QStringLiteral("mjpeg"), QStringLiteral("-")});
    QVERIFY(ffmpeg.waitForFinished());
    const QByteArray bytes = ffmpeg.readAllStandardOutput();
    FrameConverter converter;
    const QImage image = converter.convert({PixelFormat::Mjpg, YuvColor::Bt601, QSize(128, 96)},
                                           viewOf(bytes, 0), {}, {});
    QCOMPARE(image.size(), QSize(128, 96));
    QVERIFY(isNear(image.pixel(64, 48), JpegSample::Bright));
}

void tst_FrameConverter::trustsTheJpegsOwnSize()
{
    const QByteArray bytes = CameraPattern(CameraPattern::Mjpg, QSize(64, 48), 0).frame(0);
    const FrameFormat format{PixelFormat::Mjpg, YuvColor::Bt601, QSize(1280, 720)};
    FrameConverter converter;
    QCOMPARE(converter.convert(format, viewOf(bytes, 0), {}, {}).size(), QSize(64, 48));
}

// A checkerboard of black and white becomes gray.
void tst_FrameConverter::averagesWhatItScales()
{
    const QSize size(64, 64);
    QByteArray bytes;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            bytes.append((x + y) % 2 == 0 ? char(235) : char(16));
            bytes.append(char(128));
        }
    }
    const FrameFormat format{PixelFormat::Yuy2, YuvColor::Bt601, size};
    FrameConverter converter;
    const QImage result = converter.convert(format, viewOf(bytes, 128), {}, QSize(16, 16));
    QCOMPARE(result.size(), QSize(16, 16));
    QVERIFY(qAbs(qGreen(result.pixel(7, 7)) - 128) < 10);
}

void tst_FrameConverter::looksLikeTheSource_data()
{
    QTest::addColumn<int>("pixelFormat");
    QTest::addColumn<QSize>("source");
    const auto row = [](const char* name, PixelFormat format) {
        for (const QSize& size :
             {QSize(1280, 720), QSize(1281, 721), QSize(640, 480), QSize(620, 350), QSize(611, 349),
              QSize(320, 180), QSize(161, 99), QSize(400, 1000)}) {
            QTest::addRow("%s %dx%d", name, size.width(), size.height()) << int(format) << size;
        }
    };
    row("YUY2", PixelFormat::Yuy2);
    row("UYVY", PixelFormat::Uyvy);
    row("NV12", PixelFormat::Nv12);
    row("I420", PixelFormat::I420);
    row("BGRX", PixelFormat::Bgrx);
    row("RGBX", PixelFormat::Rgbx);
    row("XRGB", PixelFormat::Xrgb);
    row("XBGR", PixelFormat::Xbgr);
    row("RGB", PixelFormat::Rgb);
    row("BGR", PixelFormat::Bgr);
    row("JPEG", PixelFormat::Mjpg);
}

// Compared with the mean of the area of each pixel, which needs many times the processor time.
void tst_FrameConverter::looksLikeTheSource()
{
    constexpr double MaxMeanDifference = 3.0; // of 255
    constexpr double MaxShareOff = 0.03;      // edges may fall on a neighbouring pixel
    QFETCH(int, pixelFormat);
    QFETCH(QSize, source);
    const auto format = static_cast<PixelFormat>(pixelFormat);
    const QImage scene = sceneOf(source);
    FrameConverter converter;
    const QImage actual = converter.convert({format, YuvColor::Bt601, source},
                                            viewOf(encoded(scene, format), 0), {}, {306, 172});
    QVERIFY(!actual.isNull());
    const QImage expected =
        scene.scaled(actual.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .mirrored(true, false);
    qint64 sum = 0;
    int off = 0;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb a = actual.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            const int difference =
                qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
            sum += difference;
            off += difference > 3 * 24 ? 1 : 0;
        }
    }
    const double pixels = double(actual.width()) * actual.height();
    const double mean = double(sum) / 3.0 / pixels;
    QVERIFY2(mean <= MaxMeanDifference, qPrintable(QString::number(mean)));
    QVERIFY2(off / pixels <= MaxShareOff, qPrintable(QString::number(off / pixels)));
}

QTEST_GUILESS_MAIN(tst_FrameConverter)
#include "tst_FrameConverter.moc"
