// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/WindowsCameraTest.h"

#include <QtTest>

using namespace Platform;
using namespace TestSupport;

// What a camera of Windows sends, on its way to the preview.
class tst_WindowsCameraFrames : public WindowsCameraTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addSystems(); }
    void init();
    void showsColors_data();
    void showsColors();
    void keepsTheRate_data();
    void keepsTheRate();
    void choosesTheMode_data();
    void choosesTheMode();
    void followsTheOutputSize();
    void saysThatNothingCanBeShown();
    void saysThatFramesAreBroken();

private:
    bool showsQuadrants() const;
};

void tst_WindowsCameraFrames::init()
{
    WindowsCameraTest::init();
    stageOnSystem();
}

// Mirrored, as self-views are.
bool tst_WindowsCameraFrames::showsQuadrants() const
{
    const QImage frame = m_backend->latestFrame();
    const auto at = [&frame](int xQuarters, int yQuarters) {
        return frame.pixel(frame.width() * xQuarters / 4, frame.height() * yQuarters / 4);
    };
    return !frame.isNull() && isNear(at(3, 1), qRgb(255, 0, 0)) &&
           isNear(at(1, 1), qRgb(0, 255, 0)) && isNear(at(3, 3), qRgb(0, 0, 255)) &&
           isNear(at(1, 3), qRgb(255, 255, 255));
}

void tst_WindowsCameraFrames::showsColors_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("stride");
    QTest::newRow("YUY2") << QByteArray("YUY2") << QSize(640, 480) << 0;
    QTest::newRow("YUY2 with padding") << QByteArray("YUY2") << QSize(640, 480) << 1344;
    QTest::newRow("UYVY") << QByteArray("UYVY") << QSize(640, 480) << 0;
    QTest::newRow("NV12") << QByteArray("NV12") << QSize(640, 480) << 0;
    QTest::newRow("NV12 with padding") << QByteArray("NV12") << QSize(640, 480) << 704;
    QTest::newRow("NV12 1080p") << QByteArray("NV12") << QSize(1920, 1080) << 0;
    QTest::newRow("I420") << QByteArray("I420") << QSize(640, 480) << 0;
    QTest::newRow("MJPG") << QByteArray("MJPG") << QSize(640, 480) << 0;
    QTest::newRow("RGB24 downwards") << QByteArray("RGB24") << QSize(640, 480) << 1920;
    QTest::newRow("RGB24 upwards") << QByteArray("RGB24") << QSize(640, 480) << -1920;
    QTest::newRow("RGB24 in whole words") << QByteArray("RGB24") << QSize(322, 240) << -968;
    QTest::newRow("RGB32 downwards") << QByteArray("RGB32") << QSize(640, 480) << 2560;
    QTest::newRow("RGB32 upwards") << QByteArray("RGB32") << QSize(640, 480) << -2560;
}

void tst_WindowsCameraFrames::showsColors()
{
    QFETCH(QByteArray, format);
    QFETCH(QSize, size);
    QFETCH(int, stride);
    StagedMode mode;
    mode.format = format;
    mode.size = size;
    mode.stride = stride;
    m_cameras->plug(LinkA, QStringLiteral("Camera"), {mode});
    makeBackend();
    start();
    QTRY_VERIFY(m_watcher.frames > 3);
    QVERIFY(showsQuadrants());
    m_backend->stop();
    QVERIFY(m_backend->latestFrame().isNull());
    QCOMPARE(figures().value(QLatin1String("width")).toInt(), size.width());
    QCOMPARE(figures().value(QLatin1String("height")).toInt(), size.height());
    QCOMPARE(figures().value(QLatin1String("state")).toString(), QStringLiteral("working"));
}

void tst_WindowsCameraFrames::keepsTheRate_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("rate");
    QTest::newRow("YUY2 30/s") << QByteArray("YUY2") << 30;
    QTest::newRow("MJPG 30/s") << QByteArray("MJPG") << 30;
    QTest::newRow("NV12 10/s") << QByteArray("NV12") << 10;
}

// Every frame that is sent arrives. Frames are counted, never timed.
void tst_WindowsCameraFrames::keepsTheRate()
{
    QFETCH(QByteArray, format);
    QFETCH(int, rate);
    StagedMode mode;
    mode.format = format;
    mode.rateNumerator = rate;
    m_cameras->plug(LinkA, QStringLiteral("Camera"), {mode});
    makeBackend();
    start();
    QTRY_VERIFY_WITH_TIMEOUT(m_watcher.frames >= 3 * rate, 2 * LongMs);
    m_backend->stop();
    const double told = figures().value(QLatin1String("rate")).toDouble();
    QVERIFY2(told > 0.8 * rate && told < 1.1 * rate, qPrintable(QString::number(told)));
}

void tst_WindowsCameraFrames::choosesTheMode_data()
{
    QTest::addColumn<QList<QByteArray>>("modes");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("webcam") << QList<QByteArray>{"YUY2 1280 720 10", "YUY2 640 480 30",
                                                 "MJPG 1280 720 30", "YUY2 320 240 30"}
                            << QStringLiteral("YUY2 1280x720 10/s, MJPG 1280x720 30/s, "
                                              "YUY2 640x480 30/s, YUY2 320x240 30/s")
                            << QSize(320, 240);
    QTest::newRow("unknown ones, too") << QList<QByteArray>{"H264 1920 1080 30", "NV12 640 480 30"}
                                       << QStringLiteral("NV12 640x480 30/s") << QSize(640, 480);
    QTest::newRow("absurd ones, too")
        << QList<QByteArray>{"YUY2 640 480 15", "YUY2 0 0 30", "YUY2 70000 70000 30"}
        << QStringLiteral("YUY2 640x480 15/s") << QSize(640, 480);
}

void tst_WindowsCameraFrames::choosesTheMode()
{
    QFETCH(QList<QByteArray>, modes);
    QFETCH(QSize, expected);
    std::vector<StagedMode> staged;
    for (const QByteArray& text : modes) {
        const QList<QByteArray> words = text.split(' ');
        StagedMode mode;
        mode.format = words.at(0);
        mode.size = QSize(words.at(1).toInt(), words.at(2).toInt());
        mode.rateNumerator = words.at(3).toInt();
        staged.push_back(mode);
    }
    m_cameras->plug(LinkA, QStringLiteral("Camera"), staged);
    makeBackend();
    start();
    m_backend->stop();
    QCOMPARE(figures().value(QLatin1String("width")).toInt(), expected.width());
    QCOMPARE(figures().value(QLatin1String("height")).toInt(), expected.height());
    QTEST(figures().value(QLatin1String("modes")).toString(), "told");
}

void tst_WindowsCameraFrames::followsTheOutputSize()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"),
                    {{"YUY2", QSize(320, 180)}, {"YUY2", QSize(640, 360)}});
    makeBackend();
    start();
    QTRY_COMPARE(m_backend->latestFrame().size(), QSize(306, 172));
    m_backend->setOutputSize(2 * PreviewSize);
    QTRY_COMPARE_WITH_TIMEOUT(m_backend->latestFrame().size(), QSize(612, 344), LongMs);
    QTRY_COMPARE(stateName(), QStringLiteral("working"));
    QTRY_COMPARE(m_cameras->opened(LinkA), 1);
}

void tst_WindowsCameraFrames::saysThatNothingCanBeShown()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"), {{"H264", QSize(640, 480)}});
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("unreadable"), LongMs);
    QVERIFY(!m_backend->delivers());
}

void tst_WindowsCameraFrames::saysThatFramesAreBroken()
{
    m_cameras->plug(LinkA, QStringLiteral("Camera"));
    m_cameras->breakFrames(LinkA, true);
    makeBackend();
    m_backend->start();
    QTRY_COMPARE_WITH_TIMEOUT(causeName(), QStringLiteral("unreadable"), LongMs);
    m_cameras->breakFrames(LinkA, false);
    QTRY_COMPARE_WITH_TIMEOUT(stateName(), QStringLiteral("working"), LongMs);
}

QTEST_GUILESS_MAIN(tst_WindowsCameraFrames)
#include "tst_WindowsCameraFrames.moc"
