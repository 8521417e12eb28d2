// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/LevelMeter.h"
#include "platform/devices/sound/SoundMath.h"

#include <QTest>
#include <cmath>
#include <limits>

using Platform::LevelMeter;
using Platform::Pi;

namespace {

constexpr unsigned Rate = 48000;

// Feeds a tone with a constant offset and returns the last level.
double feed(LevelMeter& meter, double seconds, double decibels, double offset = 0.0)
{
    const double amplitude = Platform::amplitudeOfDecibels(decibels);
    double level = -1.0;
    for (int i = 0; i < static_cast<int>(seconds * Rate); ++i) {
        const double sample = offset + amplitude * std::sin(2.0 * Pi * 1000.0 * i / Rate);
        level = meter.add(static_cast<float>(sample)).value_or(level);
    }
    return level;
}

constexpr double Silence = -300.0;

} // namespace

class tst_LevelMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapsAmplitudesToLevels()
    {
        QCOMPARE(LevelMeter::levelOf(0.0), 0.0);
        QCOMPARE(LevelMeter::levelOf(0.001), 0.0);
        QCOMPARE(LevelMeter::levelOf(1.0), 1.0);
        QCOMPARE(LevelMeter::levelOf(2.0), 1.0);
        QVERIFY(std::abs(LevelMeter::levelOf(0.1) - 2.0 / 3.0) < 1e-9);
    }

    void risesAtOnceAndFallsInTime()
    {
        LevelMeter meter(Rate);
        QCOMPARE(feed(meter, 0.5, Silence), 0.0);
        QVERIFY(feed(meter, 2 * LevelMeter::BlockSeconds, -0.1) > 0.98);
        QVERIFY(feed(meter, LevelMeter::FallSeconds / 2.0, Silence) > 0.4);
        QCOMPARE(feed(meter, 0.6 * LevelMeter::FallSeconds, Silence), 0.0);
    }

    void ignoresAConstantOffset()
    {
        LevelMeter meter(Rate);
        QVERIFY(feed(meter, 1.0, Silence, 0.3) < 0.001);
        QVERIFY(!meter.hasHeardSound());
        QVERIFY(std::abs(feed(meter, 0.5, -20.0, 0.3) - 2.0 / 3.0) < 0.01);
    }

    void takesInvalidSamplesAsSilence()
    {
        LevelMeter meter(Rate);
        for (unsigned i = 0; i < Rate; ++i) {
            const float sample = i % 2 == 0 ? std::numeric_limits<float>::quiet_NaN()
                                            : std::numeric_limits<float>::infinity();
            QVERIFY(meter.add(sample).value_or(0.0) == 0.0);
        }
    }

    void tellsSoundFromNoise_data()
    {
        QTest::addColumn<double>("noise");
        QTest::addColumn<double>("sound");
        QTest::addColumn<bool>("isHeard");
        QTest::newRow("whisper in silence") << Silence << -52.0 << false;
        QTest::newRow("word in silence") << Silence << -45.0 << true;
        QTest::newRow("word no louder than the noise") << -45.0 << -40.0 << false;
        QTest::newRow("word over the noise") << -45.0 << -33.0 << true;
        QTest::newRow("noise as loud as speech") << -25.0 << -25.0 << true;
    }

    void tellsSoundFromNoise()
    {
        QFETCH(double, noise);
        QFETCH(double, sound);
        QFETCH(bool, isHeard);
        LevelMeter meter(Rate);
        feed(meter, 0.5, noise);
        feed(meter, 0.2, sound);
        QCOMPARE(meter.hasHeardSound(), isHeard);
    }

    void ignoresClicks()
    {
        LevelMeter meter(Rate);
        feed(meter, 0.5, Silence);
        for (int click = 0; click < 10; ++click) {
            feed(meter, (LevelMeter::HeardBlocks - 1) * LevelMeter::BlockSeconds, -10.0);
            feed(meter, 0.1, Silence);
        }
        QVERIFY(!meter.hasHeardSound());
        feed(meter, LevelMeter::HeardBlocks * LevelMeter::BlockSeconds, -10.0);
        QVERIFY(meter.hasHeardSound());
    }
};

QTEST_APPLESS_MAIN(tst_LevelMeter)
#include "tst_LevelMeter.moc"
