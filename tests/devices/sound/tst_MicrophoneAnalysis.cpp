// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundMath.h"

#include <QJsonArray>
#include <QTest>
#include <cmath>
#include <random>

using Platform::MicrophoneAnalysis;
using Platform::Pi;

namespace {

constexpr unsigned Rate = 48000;

double tone(unsigned i, double frequency, double amplitude)
{
    return amplitude * std::sin(2.0 * Pi * frequency * i / Rate);
}

template <typename Sound>
void feed(MicrophoneAnalysis& analysis, double seconds, bool isHeard, Sound sound)
{
    for (unsigned i = 0; i < static_cast<unsigned>(seconds * Rate); ++i) {
        analysis.add(static_cast<float>(sound(i)), isHeard);
    }
}

double value(const MicrophoneAnalysis& analysis, const char* name)
{
    return analysis.figures().value(QLatin1String(name)).toDouble(-1000.0);
}

} // namespace

class tst_MicrophoneAnalysis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyAtFirst() { QVERIFY(MicrophoneAnalysis(Rate).figures().isEmpty()); }

    void measuresSilence()
    {
        MicrophoneAnalysis analysis(Rate);
        feed(analysis, 1.0, false, [](unsigned) { return 0.0; });
        QCOMPARE(value(analysis, "seconds"), 1.0);
        QCOMPARE(value(analysis, "peakDb"), -120.0);
        QCOMPARE(value(analysis, "noiseFloorDb"), -120.0);
        QCOMPARE(value(analysis, "humShare"), 0.0);
        QCOMPARE(value(analysis, "bandwidthHz"), 0.0);
    }

    void measuresTheLevelOfEachSecond()
    {
        MicrophoneAnalysis analysis(Rate);
        feed(analysis, 0.9, false, [](unsigned) { return 0.0; });
        QVERIFY(!analysis.figures().contains(QStringLiteral("levelOverTime")));
        feed(analysis, 0.1, false, [](unsigned) { return 0.0; });
        feed(analysis, 1.5, true, [](unsigned i) { return tone(i, 1000.0, 0.1); });
        const QJsonValue levels = analysis.figures().value(QStringLiteral("levelOverTime"));
        QCOMPARE(levels["values"].toArray(), (QJsonArray{-120.0, -23.0}));
    }

    void measuresLoudnessAndClipping()
    {
        MicrophoneAnalysis analysis(Rate);
        feed(analysis, 1.0, false, [](unsigned i) { return tone(i, 997.0, 0.001); });
        feed(analysis, 1.0, true,
             [](unsigned i) { return std::min(1.0, std::max(-1.0, tone(i, 997.0, 2.0))); });
        QCOMPARE(value(analysis, "peakDb"), 0.0);
        QVERIFY(std::abs(value(analysis, "noiseFloorDb") + 63.0) < 0.2);
        // A tone is above half its amplitude for two thirds of the time; this one sounds half the
        // time.
        QVERIFY(std::abs(value(analysis, "clippedShare") - 1.0 / 3.0) < 0.01);
    }

    void detectsMainsHum_data()
    {
        QTest::addColumn<double>("frequency");
        QTest::newRow("50 Hz") << 50.0;
        QTest::newRow("60 Hz") << 60.0;
    }

    void detectsMainsHum()
    {
        QFETCH(double, frequency);
        MicrophoneAnalysis analysis(Rate);
        std::mt19937 engine(1);
        std::normal_distribution<double> noise(0.0, 0.01);
        // The first and third harmonic of the hum have four fifths of all the power.
        feed(analysis, 2.0, false, [&](unsigned i) {
            return tone(i, frequency, 0.02 * std::sqrt(1.5)) +
                   tone(i, 3.0 * frequency, 0.02 * std::sqrt(0.5)) + noise(engine);
        });
        QCOMPARE(value(analysis, "humHz"), frequency);
        QVERIFY2(std::abs(value(analysis, "humShare") - 0.8) < 0.02,
                 qPrintable(QString::number(value(analysis, "humShare"))));
    }

    // As loud as speech it is heard all the time, but the first pause tells what is hum.
    void detectsLoudHum()
    {
        MicrophoneAnalysis analysis(Rate);
        const auto hum = [](unsigned i) { return tone(i, 50.0, 0.3); };
        feed(analysis, 1.0, true, hum);
        QVERIFY(value(analysis, "humShare") > 0.95);
        feed(analysis, 0.5, false, [](unsigned i) { return tone(i, 997.0, 0.01); });
        QCOMPARE(value(analysis, "humShare"), 0.0);
        feed(analysis, 1.0, true, hum);
        QCOMPARE(value(analysis, "humShare"), 0.0);
    }

    void measuresTheBandwidth()
    {
        MicrophoneAnalysis analysis(Rate);
        std::mt19937 engine(1);
        std::normal_distribution<double> noise(0.0, 0.0001);
        feed(analysis, 1.0, false, [&](unsigned) { return noise(engine); });
        feed(analysis, 1.0, true, [&](unsigned i) {
            double sum = noise(engine);
            for (double frequency = 500.0; frequency <= 3500.0; frequency += 500.0) {
                sum += tone(i, frequency, 0.05);
            }
            return sum;
        });
        QCOMPARE(value(analysis, "bandwidthHz"), 3500.0);
    }
};

QTEST_APPLESS_MAIN(tst_MicrophoneAnalysis)
#include "tst_MicrophoneAnalysis.moc"
