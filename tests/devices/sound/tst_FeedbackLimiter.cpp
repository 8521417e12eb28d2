// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/FeedbackLimiter.h"
#include "platform/devices/sound/SoundMath.h"

#include <QTest>
#include <cmath>
#include <deque>
#include <limits>

using Platform::FeedbackLimiter;
using Platform::Pi;

namespace {

constexpr unsigned Rate = 48000;

float tone(int i, double amplitude)
{
    return static_cast<float>(amplitude * std::sin(2.0 * Pi * 700.0 * i / Rate));
}

} // namespace

class tst_FeedbackLimiter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesSpeechUnchanged()
    {
        FeedbackLimiter limiter(Rate);
        for (unsigned i = 0; i < 10 * Rate; ++i) {
            const int at = static_cast<int>(i);
            // Words of half a second, peaking at -12 dBFS.
            const float sample = i / (Rate / 2) % 2 == 0 ? tone(at, 0.25) : 0.0F;
            QCOMPARE(limiter.pass(sample), sample);
        }
        QVERIFY(!limiter.isDucking());
    }

    void limitsToTheCeiling()
    {
        FeedbackLimiter limiter(Rate);
        for (unsigned i = 0; i < Rate / 10; ++i) {
            const float passed = limiter.pass(tone(static_cast<int>(i), 1.0));
            QVERIFY(std::abs(passed) <= FeedbackLimiter::Ceiling * 1.001F);
        }
        QCOMPARE(limiter.pass(std::numeric_limits<float>::quiet_NaN()), 0.0F);
    }

    void ducksLastingLoudnessAndRecovers()
    {
        FeedbackLimiter limiter(Rate);
        int i = 0;
        while (!limiter.isDucking()) {
            limiter.pass(tone(i++, 0.7));
            QVERIFY(i < static_cast<int>(Rate));
        }
        for (unsigned later = 0; later < Rate / 10; ++later) {
            limiter.pass(tone(i++, 0.7));
        }
        QVERIFY(limiter.isDucking());
        QVERIFY(std::abs(limiter.pass(0.5F)) < 0.01F);
        for (unsigned later = 0; later < 2 * Rate; ++later) {
            limiter.pass(0.0F);
        }
        QCOMPARE(limiter.pass(0.1F), 0.1F);
    }

    // A step would be heard as a click.
    void ducksGradually()
    {
        FeedbackLimiter limiter(Rate);
        while (!limiter.isDucking()) {
            limiter.pass(0.4F);
        }
        const float first = limiter.pass(0.4F);
        const float second = limiter.pass(0.4F);
        QVERIFY2(first > 0.3F && second > 0.3F, qPrintable(QString::number(double(first))));
        QVERIFY(second < first);
    }

    // The microphone records the speaker with a delay of 20 ms, louder than it was played.
    void stopsFeedback_data()
    {
        QTest::addColumn<double>("gain");
        QTest::newRow("gain 1.05") << 1.05;
        QTest::newRow("gain 2") << 2.0;
        QTest::newRow("gain 10") << 10.0;
    }

    void stopsFeedback()
    {
        QFETCH(double, gain);
        constexpr int Seconds = 30;
        FeedbackLimiter limiter(Rate);
        std::deque<float> air(Rate / 50, 0.0F);
        double loudSeconds = 0.0;
        for (int i = 0; i < Seconds * static_cast<int>(Rate); ++i) {
            const float voice = i < 4800 ? tone(i, 0.1) : 0.0F;
            const auto heard = static_cast<double>(air.front()) * gain;
            const float passed = limiter.pass(voice + static_cast<float>(std::min(1.0, heard)));
            air.pop_front();
            air.push_back(passed);
            QVERIFY(std::abs(passed) <= FeedbackLimiter::Ceiling * 1.001F);
            loudSeconds += std::abs(passed) > 0.1F ? 1.0 / Rate : 0.0;
        }
        QVERIFY2(loudSeconds < 0.2 * Seconds, qPrintable(QString::number(loudSeconds)));
    }
};

QTEST_APPLESS_MAIN(tst_FeedbackLimiter)
#include "tst_FeedbackLimiter.moc"
