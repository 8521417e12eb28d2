// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/CaptureMeter.h"
#include "platform/devices/sound/MicrophoneAnalysis.h"
#include "platform/devices/sound/SoundMath.h"

#include <QTest>
#include <chrono>
#include <cmath>
#include <memory>
#include <optional>

using Platform::CaptureMeter;
using Platform::MicrophoneAnalysis;
using Platform::Pi;
using std::chrono::milliseconds;

namespace {

constexpr unsigned Rate = 48000;
constexpr milliseconds Piece(5);

} // namespace

class tst_CaptureMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_levels.clear();
        m_deliveries.clear();
        m_soundsHeard = 0;
        m_phase = 0;
        m_now = {};
        m_analysis = std::make_shared<MicrophoneAnalysis>(Rate);
        CaptureMeter::Events events;
        events.levelMeasured = [this](double level) { m_levels.append(level); };
        events.soundHeard = [this] { ++m_soundsHeard; };
        events.deliveryChanged = [this](bool delivers) { m_deliveries.append(delivers); };
        m_meter.emplace(Rate, m_analysis, std::move(events), m_now);
    }

    void mixesTheChannels()
    {
        const std::vector<float> stereo{0.5F, 0.25F, -1.0F, 1.0F};
        std::vector<float> mono;
        CaptureMeter::mixToMono(stereo.data(), 2, mono);
        QCOMPARE(mono, (std::vector<float>{0.375F, 0.0F}));
    }

    // The louder channel counts. The other one may be silent, as with some headsets.
    void showsTheLouderChannel()
    {
        feed(milliseconds(200), 0.1, 0.0);
        QVERIFY(std::abs(m_levels.last() - 2.0 / 3.0) < 0.01);
        m_levels.clear();
        feed(milliseconds(200), 0.0, 0.1);
        QVERIFY(std::abs(m_levels.last() - 2.0 / 3.0) < 0.01);
    }

    void publishesSteadyLevelsOnlyAsOftenAsNeeded()
    {
        feed(milliseconds(200), 0.1, 0.1);
        m_levels.clear();
        feed(milliseconds(1000), 0.1, 0.1);
        QVERIFY2(m_levels.size() >= 30 && m_levels.size() <= 1000 / 19,
                 qPrintable(QString::number(m_levels.size())));
    }

    // Nobody is woken up for a bar that stays empty.
    void publishesSilenceOnce()
    {
        feed(milliseconds(1000), 0.0, 0.0);
        QCOMPARE(m_levels, QList<double>{0.0});
        feed(milliseconds(200), 0.1, 0.1);
        QVERIFY(m_levels.size() > 5);
        feed(milliseconds(3000), 0.0, 0.0); // the bar falls first
        QCOMPARE(m_levels.count(0.0), 2);
        QCOMPARE(m_levels.last(), 0.0);
    }

    void publishesARiseAtOnce()
    {
        feed(milliseconds(200), 0.0, 0.0);
        m_levels.clear();
        feed(milliseconds(10), 0.5, 0.5);
        QVERIFY(!m_levels.isEmpty() && m_levels.last() > 0.85);
    }

    void tellsOnceThatSoundWasHeard()
    {
        feed(milliseconds(500), 0.0, 0.0);
        QCOMPARE(m_soundsHeard, 0);
        feed(milliseconds(500), 0.1, 0.1);
        QCOMPARE(m_soundsHeard, 1);
        QCOMPARE(m_analysis->figures().value(QLatin1String("seconds")).toDouble(), 1.0);
    }

    void stallsAfterTheTimeoutAndRecovers()
    {
        QCOMPARE(m_deliveries, QList<bool>());
        feed(milliseconds(200), 0.1, 0.1);
        QCOMPARE(m_deliveries, QList<bool>{true});
        m_levels.clear();
        m_meter->watch(m_now + CaptureMeter::StallTimeout);
        QCOMPARE(m_deliveries, QList<bool>{true});
        for (int i = 1; i <= 3; ++i) { // told only once
            m_meter->watch(m_now + CaptureMeter::StallTimeout + milliseconds(i));
        }
        QCOMPARE(m_deliveries, (QList<bool>{true, false}));
        QCOMPARE(m_levels, QList<double>{0.0});

        m_now += milliseconds(1000);
        feed(milliseconds(200), 0.1, 0.1);
        QCOMPARE(m_deliveries, (QList<bool>{true, false, true}));
        QVERIFY(m_levels.last() > 0.6);
    }

    void stallsIfNoSampleEverComes()
    {
        m_meter->watch(m_now + CaptureMeter::StallTimeout + milliseconds(1));
        QCOMPARE(m_deliveries, QList<bool>{false});
    }

private:
    // A tone with an amplitude for each channel, in pieces as a server delivers them.
    void feed(milliseconds length, double left, double right)
    {
        constexpr std::size_t Frames = Rate * Piece.count() / 1000;
        std::vector<float> samples(Frames * CaptureMeter::Channels);
        std::vector<float> mono;
        for (milliseconds at{}; at < length; at += Piece) {
            for (std::size_t i = 0; i < Frames; ++i) {
                const double wave = std::sin(2.0 * Pi * 1000.0 * m_phase++ / Rate);
                samples[i * CaptureMeter::Channels] = static_cast<float>(left * wave);
                samples[i * CaptureMeter::Channels + 1] = static_cast<float>(right * wave);
            }
            m_now += Piece;
            CaptureMeter::mixToMono(samples.data(), Frames, mono);
            m_meter->add(samples.data(), mono, m_now);
        }
    }

    QList<double> m_levels;
    QList<bool> m_deliveries;
    int m_soundsHeard = 0;
    int m_phase = 0;
    CaptureMeter::Clock::time_point m_now;
    std::shared_ptr<MicrophoneAnalysis> m_analysis;
    std::optional<CaptureMeter> m_meter;
};

QTEST_APPLESS_MAIN(tst_CaptureMeter)
#include "tst_CaptureMeter.moc"
