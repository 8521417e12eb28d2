// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameStatistics.h"

#include <QImage>
#include <QJsonArray>
#include <QtTest>

using namespace Platform;
using namespace std::chrono_literals;

namespace {

FrameStatistics::Sample sampleOf(QRgb color)
{
    QImage frame(32, 16, QImage::Format_RGB32);
    frame.fill(color);
    return FrameStatistics::sampleOf(frame);
}

} // namespace

class tst_FrameStatistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void samplesFrames();
    void tellsNothingOfNothing();
    void countsAndAverages();
    void countsEachSecond();
};

void tst_FrameStatistics::samplesFrames()
{
    QCOMPARE(sampleOf(qRgb(255, 255, 255)).brightness, 1.0);
    QCOMPARE(sampleOf(qRgb(0, 0, 0)).brightness, 0.0);
    QCOMPARE(sampleOf(qRgb(9, 9, 9)).hash, sampleOf(qRgb(9, 9, 9)).hash);
    QVERIFY(sampleOf(qRgb(9, 9, 9)).hash != sampleOf(qRgb(9, 9, 10)).hash);
    // the unused byte of a pixel doesn't count
    QCOMPARE(sampleOf(0x00090909).hash, sampleOf(0xff090909).hash);
}

void tst_FrameStatistics::tellsNothingOfNothing()
{
    FrameStatistics statistics;
    statistics.start(FrameStatistics::Clock::now());
    const QJsonObject expected{{QStringLiteral("pictures"), 0}};
    QCOMPARE(statistics.figures(), expected);
}

void tst_FrameStatistics::countsAndAverages()
{
    const QSize size(640, 480);
    const auto start = FrameStatistics::Clock::now();
    FrameStatistics statistics;
    statistics.start(start);
    statistics.add(sampleOf(qRgb(0, 0, 0)), size, start + 80ms);
    statistics.add(sampleOf(qRgb(255, 255, 255)), size, start + 120ms);
    statistics.add(sampleOf(qRgb(255, 255, 255)), size, start + 160ms);
    statistics.add(sampleOf(qRgb(255, 255, 255)), size, start + 200ms);
    statistics.add(sampleOf(qRgb(0, 0, 0)), QSize(320, 240), start + 240ms);
    const QJsonObject expected{
        {QStringLiteral("pictures"), 5},        {QStringLiteral("rate"), 25.0},
        {QStringLiteral("width"), 320},         {QStringLiteral("height"), 240},
        {QStringLiteral("firstPictureMs"), 80}, {QStringLiteral("blackShare"), 0.4},
        {QStringLiteral("frozenShare"), 0.5},   {QStringLiteral("brightness"), 0.6}};
    QCOMPARE(statistics.figures(), expected);
    statistics.start(start);
    QCOMPARE(statistics.frames(), 0);
}

void tst_FrameStatistics::countsEachSecond()
{
    FrameStatistics statistics;
    const FrameStatistics::Clock::time_point start{};
    statistics.start(start);
    for (int i = 0; i < 25; ++i) {
        statistics.add(sampleOf(qRgb(i, 0, 0)), QSize(4, 4), start + i * 100ms);
    }
    statistics.add(sampleOf(qRgb(99, 0, 0)), QSize(4, 4), start + 4100ms);
    const QJsonValue rates = statistics.figures().value(QStringLiteral("rateOverTime"));
    QCOMPARE(rates["values"].toArray(), (QJsonArray{10, 10, 5, 0}));
}

QTEST_GUILESS_MAIN(tst_FrameStatistics)
#include "tst_FrameStatistics.moc"
