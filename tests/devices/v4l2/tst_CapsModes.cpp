// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/CapsModes.h"

#include <QtTest>
#include <memory>

using namespace Platform;

// What a camera is asked for.
class tst_CapsModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { gst_init(nullptr, nullptr); }
    void capsOf_data();
    void capsOf();
};

void tst_CapsModes::capsOf_data()
{
    QTest::addColumn<int>("pixelFormat");
    QTest::addColumn<int>("rate");
    QTest::addColumn<QByteArray>("caps");
    QTest::newRow("raw") << int(PixelFormat::Yuy2) << 30
                         << QByteArray("video/x-raw,format=YUY2,width=640,height=480,"
                                       "framerate=30/1");
    QTest::newRow("JPEG") << int(PixelFormat::Mjpg) << 5
                          << QByteArray("image/jpeg,width=640,height=480,framerate=5/1");
    QTest::newRow("no rate told") << int(PixelFormat::Nv12) << 0
                                  << QByteArray("video/x-raw,format=NV12,width=640,height=480");
}

void tst_CapsModes::capsOf()
{
    QFETCH(int, pixelFormat);
    QFETCH(int, rate);
    QFETCH(QByteArray, caps);
    CameraMode mode;
    mode.pixelFormat = static_cast<PixelFormat>(pixelFormat);
    mode.size = {640, 480};
    mode.rate.numerator = rate;
    GstCaps* const actual = CapsModes::capsOf(mode);
    GstCaps* const expected = gst_caps_from_string(caps.constData());
    gchar* const text = gst_caps_to_string(actual);
    QVERIFY2(gst_caps_is_strictly_equal(actual, expected) != 0, text);
    g_free(text);
    gst_caps_unref(expected);
    gst_caps_unref(actual);
}

QTEST_GUILESS_MAIN(tst_CapsModes)
#include "tst_CapsModes.moc"
