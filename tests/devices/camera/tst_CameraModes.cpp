// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/CameraModes.h"

#include <QtTest>

using namespace Platform;

namespace {

using Offer = CameraModes::Offer;
using Offers = std::vector<Offer>;

constexpr QSize Preview(306, 172);

Offer single(PixelFormat format, const QSize& size, qint64 rate, qint64 denominator = 1)
{
    return {format, size, size, {1, 1}, {rate, denominator}, {rate, denominator}};
}

QString textOf(const std::optional<CameraMode>& mode)
{
    if (!mode) {
        return {};
    }
    return QStringLiteral("%1 %2x%3 %4")
        .arg(mode->pixelFormat == PixelFormat::Mjpg ? QStringLiteral("jpeg")
                                                    : QStringLiteral("raw"))
        .arg(mode->size.width())
        .arg(mode->size.height())
        .arg(mode->rate.value(), 0, 'g', 4);
}

CameraModes modesOf(const Offers& offers)
{
    CameraModes result;
    for (const Offer& offer : offers) {
        result.add(offer);
    }
    return result;
}

} // namespace

Q_DECLARE_METATYPE(std::vector<Platform::CameraModes::Offer>)

class tst_CameraModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesForThePreview_data();
    void choosesForThePreview();
    void choosesForSharpScreens();
    void refusesWhatCantBe_data();
    void refusesWhatCantBe();
    void staysBounded();
    void tellsTheLargestFirst();
};

void tst_CameraModes::choosesForThePreview_data()
{
    QTest::addColumn<Offers>("offers");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const Offers& offers, const char* expected) {
        QTest::newRow(name) << offers << QString::fromLatin1(expected);
    };
    const auto yuy2 = PixelFormat::Yuy2;
    const auto jpeg = PixelFormat::Mjpg;
    row("none", {}, "");
    row("1080p stick, slow if raw",
        {single(yuy2, {1920, 1080}, 5), single(yuy2, {1280, 720}, 10), single(yuy2, {640, 480}, 30),
         single(yuy2, {320, 240}, 30), single(jpeg, {1920, 1080}, 30),
         single(jpeg, {320, 240}, 30)},
        "raw 320x240 30");
    row("compressed alone",
        {single(jpeg, {1920, 1080}, 30), single(jpeg, {1280, 720}, 30),
         single(jpeg, {640, 360}, 30)},
        "jpeg 640x360 30");
    row("compressed, because raw is slow",
        {single(yuy2, {1920, 1080}, 5), single(jpeg, {1920, 1080}, 30)}, "jpeg 1920x1080 30");
    row("4K",
        {single(PixelFormat::Nv12, {3840, 2160}, 30), single(PixelFormat::Nv12, {1920, 1080}, 60),
         single(jpeg, {3840, 2160}, 30)},
        "raw 1920x1080 60");
    row("one mode", {single(yuy2, {640, 480}, 30)}, "raw 640x480 30");
    row("rates of one size",
        {single(yuy2, {640, 480}, 60), single(yuy2, {640, 480}, 15), single(yuy2, {640, 480}, 30)},
        "raw 640x480 30");
    row("NTSC", {single(yuy2, {640, 480}, 30000, 1001), single(yuy2, {320, 240}, 25)},
        "raw 640x480 29.97");
    row("nothing at 30",
        {single(yuy2, {640, 480}, 15), single(yuy2, {320, 240}, 10), single(yuy2, {800, 600}, 25)},
        "raw 800x600 25");
    row("too small",
        {single(yuy2, {160, 120}, 30), single(yuy2, {176, 144}, 30), single(jpeg, {80, 60}, 30)},
        "raw 176x144 30");
    row("too small, the largest compressed",
        {single(yuy2, {160, 120}, 30), single(jpeg, {240, 160}, 30)}, "jpeg 240x160 30");
    row("as high as the preview", {single(yuy2, {240, 180}, 30), single(yuy2, {640, 480}, 30)},
        "raw 240x180 30");
    row("unknown rate", {single(yuy2, {640, 480}, 0)}, "raw 640x480 0");
    row("any size", {{yuy2, {1, 1}, {INT_MAX, INT_MAX}, {1, 1}, {0, 1}, {INT_MAX, 1}}},
        "raw 306x172 30");
    row("steps", {{yuy2, {160, 120}, {1920, 1080}, {16, 8}, {5, 1}, {60, 1}}}, "raw 320x176 30");
    row("steps that miss the largest",
        {{yuy2, {100, 100}, {250, 250}, {100, 60}, {30, 1}, {30, 1}}}, "raw 200x220 30");
    row("a range that begins above", {{yuy2, {800, 600}, {1600, 1200}, {1, 1}, {50, 1}, {60, 1}}},
        "raw 800x600 50");
    row("no step", {{yuy2, {160, 120}, {640, 480}, {0, -3}, {30, 1}, {30, 1}}}, "raw 306x172 30");
}

void tst_CameraModes::choosesForThePreview()
{
    QFETCH(Offers, offers);
    QTEST(textOf(modesOf(offers).forPreview(Preview)), "expected");
    std::reverse(offers.begin(), offers.end());
    QTEST(textOf(modesOf(offers).forPreview(Preview)), "expected"); // in whatever order they come
}

void tst_CameraModes::choosesForSharpScreens()
{
    const CameraModes modes = modesOf({single(PixelFormat::Yuy2, {320, 240}, 30),
                                       single(PixelFormat::Yuy2, {640, 480}, 30),
                                       single(PixelFormat::Mjpg, {1280, 720}, 30)});
    QCOMPARE(textOf(modes.forPreview(1.5 * Preview)), QStringLiteral("raw 640x480 30"));
    QCOMPARE(textOf(modes.forPreview(2 * Preview)), QStringLiteral("raw 640x480 30"));
    QCOMPARE(textOf(modes.forPreview(3 * Preview)), QStringLiteral("jpeg 1280x720 30"));
}

void tst_CameraModes::refusesWhatCantBe_data()
{
    QTest::addColumn<Offers>("offers");
    const auto yuy2 = PixelFormat::Yuy2;
    const auto row = [](const char* name, const Offer& offer) {
        QTest::newRow(name) << Offers{offer};
    };
    row("absurd rates", {yuy2, {640, 480}, {640, 480}, {1, 1}, {4000000000, 1}, {4294967295, 1}});
    row("no format", single(PixelFormat::None, {640, 480}, 30));
    row("no width", single(yuy2, {0, 480}, 30));
    row("negative height", single(yuy2, {640, -480}, 30));
    row("huge", single(yuy2, {INT_MAX, INT_MAX}, 30));
    row("too wide", single(yuy2, {8193, 2}, 30));
    row("no denominator", single(yuy2, {640, 480}, 30, 0));
    row("negative rate", single(yuy2, {640, 480}, -30));
    row("absurd rate", single(yuy2, {640, 480}, 4294967295));
    row("both negative", single(yuy2, {640, 480}, -30, -1));
    row("ends swapped", {yuy2, {640, 480}, {320, 240}, {1, 1}, {30, 1}, {30, 1}});
    row("rates swapped", {yuy2, {640, 480}, {640, 480}, {1, 1}, {60, 1}, {30, 1}});
    row("range of nothing", {yuy2, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, {1, 1}, {1, 1}, {1, 1}});
    row("range above all", {yuy2, {INT_MAX - 1, 9000}, {INT_MAX, INT_MAX}, {1, 1}, {1, 1}, {1, 1}});
}

void tst_CameraModes::refusesWhatCantBe()
{
    QFETCH(Offers, offers);
    CameraModes modes = modesOf(offers);
    QVERIFY(modes.isEmpty());
    QCOMPARE(textOf(modes.forPreview(Preview)), QString());
    QCOMPARE(modes.text(), QString());
    modes.add(single(PixelFormat::Yuy2, {640, 480}, 30)); // and the others count
    QCOMPARE(textOf(modes.forPreview(Preview)), QStringLiteral("raw 640x480 30"));
}

void tst_CameraModes::staysBounded()
{
    CameraModes modes;
    for (int i = 0; i < 100000; ++i) {
        modes.add(single(PixelFormat::Yuy2, {400 + i % 7000, 300 + i / 7000}, 30));
    }
    QVERIFY(modes.isFull());
    QCOMPARE(textOf(modes.forPreview(Preview)), QStringLiteral("raw 400x300 30"));
    QVERIFY(modes.text().size() < 1000);
    CameraModes equal;
    for (int i = 0; i < 100000; ++i) {
        equal.add(single(PixelFormat::Yuy2, {640, 480}, 30));
    }
    QVERIFY(!equal.isFull());
}

void tst_CameraModes::tellsTheLargestFirst()
{
    const CameraModes modes =
        modesOf({single(PixelFormat::Yuy2, {640, 480}, 15),
                 single(PixelFormat::Yuy2, {640, 480}, 30000, 1001),
                 single(PixelFormat::Mjpg, {1920, 1080}, 30),
                 single(PixelFormat::Rgbx, {800, 600}, 0),
                 {PixelFormat::Nv12, {16, 16}, {1280, 720}, {2, 2}, {1, 1}, {30, 1}}});
    QCOMPARE(modes.text(), QStringLiteral("MJPG 1920x1080 30/s, NV12 16x16-1280x720 30/s, "
                                          "RGB 800x600, YUY2 640x480 29.97/s"));
}

QTEST_GUILESS_MAIN(tst_CameraModes)
#include "tst_CameraModes.moc"
