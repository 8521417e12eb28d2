// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftControl.h"
#include "platform/devices/sound/DriftResampler.h"

#include <QTest>
#include <algorithm>
#include <cmath>
#include <random>

using Platform::DriftControl;
using Platform::DriftResampler;

namespace {

constexpr double FragmentMs = 5.0;
constexpr double StartMs = 7.0;

// A playback buffer whose speaker has its own clock. After an underflow playback waits until the
// buffer is filled to StartMs, as servers do.
struct PlaybackBuffer
{
    double fillMs = 0.0;
    double lowestMs = 1000.0;
    double highestMs = 0.0;
    int underflows = 0;
    bool isWaiting = false;

    void run(DriftControl& control, double speakerRate, double seconds)
    {
        lowestMs = 1000.0;
        highestMs = 0.0;
        for (double at = 0.0; at < 1000.0 * seconds; at += FragmentMs) {
            control.observe(fillMs, FragmentMs);
            fillMs += FragmentMs / (1.0 + control.deviation()) - control.takeExcessMs();
            isWaiting = isWaiting && fillMs < StartMs;
            if (isWaiting) {
                continue;
            }
            fillMs -= FragmentMs * speakerRate;
            if (fillMs < 0.0) {
                fillMs = 0.0;
                ++underflows;
                isWaiting = true;
                control.noteUnderflow();
            }
            lowestMs = std::min(lowestMs, fillMs);
            highestMs = std::max(highestMs, fillMs);
        }
    }
};

} // namespace

class tst_DriftControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheTargetLevel_data()
    {
        QTest::addColumn<double>("speakerRate");
        QTest::addColumn<int>("underflowsAtFirst");
        QTest::newRow("same clock") << 1.0 << 0;
        QTest::newRow("speaker 200 ppm slow") << 0.9998 << 0;
        QTest::newRow("speaker 200 ppm fast") << 1.0002 << 0;
        QTest::newRow("speaker 0.2 % slow") << 0.998 << 0;
        QTest::newRow("speaker 0.2 % fast") << 1.002 << 0;
        QTest::newRow("speaker 1 % slow") << 0.99 << 0;
        QTest::newRow("speaker 1 % fast") << 1.01 << 1;
    }

    void keepsTheTargetLevel()
    {
        QFETCH(double, speakerRate);
        QFETCH(int, underflowsAtFirst);
        DriftControl control;
        PlaybackBuffer buffer{5.0};
        buffer.run(control, speakerRate, 20.0);
        QVERIFY2(buffer.underflows <= underflowsAtFirst,
                 qPrintable(QString::number(buffer.underflows)));
        buffer.underflows = 0;
        buffer.run(control, speakerRate, 600.0);
        QCOMPARE(buffer.underflows, 0);
        QVERIFY(buffer.lowestMs > 0.0);
        QVERIFY2(buffer.highestMs < control.targetMs() + 2.0 * FragmentMs,
                 qPrintable(QString::number(buffer.highestMs)));
    }

    void keepsAnotherReserve()
    {
        constexpr double ReserveMs = 15.0;
        DriftControl control(ReserveMs);
        PlaybackBuffer buffer{5.0};
        buffer.run(control, 1.0002, 60.0);
        buffer.underflows = 0;
        buffer.run(control, 1.0002, 60.0);
        QCOMPARE(buffer.underflows, 0);
        QCOMPARE(control.targetMs(), ReserveMs);
        // The lowest of the buffer is that before a packet comes.
        QVERIFY2(std::abs(buffer.lowestMs - ReserveMs) < 1.0,
                 qPrintable(QString::number(buffer.lowestMs)));
    }

    void excessIsDropped()
    {
        DriftControl control;
        PlaybackBuffer buffer{3000.0}; // after a server was frozen
        buffer.run(control, 1.0, 2.0);
        QVERIFY2(buffer.fillMs < 15.0, qPrintable(QString::number(buffer.fillMs)));
    }

    void underflowsRaiseTheTarget()
    {
        DriftControl control;
        for (int i = 0; i < 100; ++i) {
            control.noteUnderflow();
        }
        QCOMPARE(control.targetMs(), DriftControl::MaxTargetMs);
    }

    void resamplerKeepsTheSound()
    {
        for (const double deviation : {0.0, 0.003, -0.003, 1.0}) {
            DriftResampler resampler;
            resampler.setDeviation(deviation);
            QVERIFY(std::abs(resampler.deviation()) <= DriftResampler::MaxDeviation);
            std::vector<float> result;
            constexpr int Count = 48000;
            constexpr int PieceSize = 240;
            constexpr double Delay = DriftResampler::DelaySamples;
            const auto wave = [](double at) { return std::sin(0.05 * at); };
            for (int i = 0; i < Count; i += PieceSize) {
                std::vector<float> piece;
                for (int k = i; k < i + PieceSize; ++k) {
                    piece.push_back(static_cast<float>(wave(k)));
                }
                resampler.process(piece, result);
                // A playback buffer that starts with less than it expects underflows at once.
                QVERIFY(i > 0 || std::abs(static_cast<int>(result.size()) - PieceSize) < 5);
            }
            const double step = 1.0 + resampler.deviation();
            QVERIFY(std::abs(static_cast<double>(result.size()) - Count / step) < 2.0);
            for (std::size_t i = 100; i < result.size(); ++i) {
                const double expected = wave(static_cast<double>(i) * step - Delay);
                QVERIFY(std::abs(static_cast<double>(result[i]) - expected) < 0.001);
            }
        }
    }

    // A muted microphone goes on for as long as its sound would, and the sound after it is whole.
    void resamplerKeepsSilenceInTime()
    {
        constexpr std::size_t Count = 480000;
        constexpr std::size_t PieceSize = 240;
        for (const double deviation : {0.0, 0.003, -0.003, 0.015}) {
            DriftResampler resampler;
            resampler.setDeviation(deviation);
            std::vector<float> result;
            const auto feed = [&](std::size_t count, auto wave) {
                for (std::size_t i = 0; i < count; i += PieceSize) {
                    std::vector<float> piece;
                    for (std::size_t k = i; k < i + PieceSize; ++k) {
                        piece.push_back(static_cast<float>(wave(static_cast<double>(k))));
                    }
                    resampler.process(piece, result);
                }
            };
            const auto wave = [](double at) { return std::sin(0.05 * at); };
            feed(PieceSize, wave);
            feed(Count, [](double) { return 0.0; });
            const double step = 1.0 + deviation;
            QVERIFY(std::abs(static_cast<double>(result.size()) - (Count + PieceSize) / step) <
                    3.0);
            QVERIFY(std::all_of(result.begin() + 2 * PieceSize, result.end(),
                                [](float sample) { return std::abs(sample) < 1e-6F; }));

            const std::size_t start = result.size();
            feed(4800, wave);
            double worst = 0.0;
            for (std::size_t i = start + 100; i < result.size(); ++i) {
                // The silence before may have been a sample shorter or longer.
                double nearest = 1.0;
                for (double shift = -2.0; shift <= 2.0; shift += 0.05) {
                    const double at = static_cast<double>(i - start) * step -
                                      DriftResampler::DelaySamples + shift;
                    nearest =
                        std::min(nearest, std::abs(static_cast<double>(result[i]) - wave(at)));
                }
                worst = std::max(worst, nearest);
            }
            QVERIFY2(worst < 0.01, qPrintable(QString::number(worst)));
        }
    }

    // A controller changes the ratio with nearly every piece. There are libraries that crash then.
    void resamplerBearsEveryChange()
    {
        std::mt19937 random(20261122);
        for (int round = 0; round < 200; ++round) {
            DriftResampler resampler;
            std::vector<float> result;
            for (int i = 0; i < 200; ++i) {
                resampler.setDeviation((static_cast<int>(random() % 3001) - 1500) / 100000.0);
                resampler.process(std::vector<float>(random() % 500, 0.5F), result);
            }
            QVERIFY(std::all_of(result.begin(), result.end(),
                                [](float sample) { return std::abs(sample) < 0.7F; }));
        }
    }
};

QTEST_APPLESS_MAIN(tst_DriftControl)
#include "tst_DriftControl.moc"
