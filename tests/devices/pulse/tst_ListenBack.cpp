// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/ListenBack.h"
#include "platform/devices/pulse/PulseLoop.h"
#include "platform/devices/pulse/PulseSound.h"
#include "platform/devices/sound/SoundMath.h"
#include "tests/devices/pulse/UnwillingPulse.h"
#include "tests/support/DriftingMicrophone.h"
#include "tests/support/MachineDelay.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QTest>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <numeric>

using namespace Platform;
using TestSupport::DriftingMicrophone;
using TestSupport::SoundRecording;
using TestSupport::SoundServer;

namespace {

constexpr int TimeoutMs = 5000;
constexpr int Bursts = 50; // 10 s; meanwhile the clocks drift apart by 100 ms
constexpr int SettledBurst = Bursts / 2;
constexpr double MaxDelayMs = 60.0;
constexpr double MaxGrowthMs = 10.0;
constexpr int MaxTears = 1; // after the drift was measured

// Listening to one drifting microphone on one speaker.
class Listening
{
public:
    Listening(SoundServer& server, const QString& name, double speed, const QString& speaker)
        : m_name(name),
          m_device(server, name, speed),
          m_recording(speaker + QStringLiteral(".monitor")),
          m_sound(m_report),
          m_speaker(m_sound.createSpeaker(m_listener)),
          m_microphone(m_sound.createMicrophone(m_listener))
    {
        m_speaker->setCurrent(speaker);
        m_microphone->setCurrent(name);
        m_microphone->setListening(true);
        m_microphone->open();
    }

    bool waitForStart()
    {
        return m_device.isPlugged() && m_recording.waitForStart() &&
               QTest::qWaitFor([this] { return isUsable(m_microphone->state()); }, TimeoutMs);
    }

    DriftingMicrophone& device() { return m_device; }

    // What is wrong; empty if all is well.
    QString fault() const
    {
        const std::vector<float> heard = m_recording.samples();
        const std::vector<double> delays = this->delays(heard);
        const int tears = countTears(heard);
        const auto settled = delays.begin() + SettledBurst;
        const auto lateBursts = settled + SettledBurst / 2;
        const double growth = mean(lateBursts, delays.end()) - mean(settled, lateBursts);
        const auto [least, most] = std::minmax_element(delays.begin(), delays.end());
        const QString figures = QStringLiteral("%1: delay %2 to %3 ms, growing by %4 ms, %5 tears")
                                    .arg(m_name)
                                    .arg(*least, 0, 'f', 1)
                                    .arg(*most, 0, 'f', 1)
                                    .arg(growth, 0, 'f', 1)
                                    .arg(tears);
        qInfo("%s", qPrintable(figures));
        const bool isGood =
            *least >= 0.0 && *most < MaxDelayMs && growth < MaxGrowthMs && tears <= MaxTears;
        return isGood ? QString() : figures;
    }

private:
    static constexpr float BurstThreshold = 0.15F;

    static double mean(std::vector<double>::const_iterator from,
                       std::vector<double>::const_iterator to)
    {
        return std::accumulate(from, to, 0.0) / static_cast<double>(to - from);
    }

    std::size_t sampleAt(DriftingMicrophone::Clock::time_point time) const
    {
        const std::chrono::duration<double> since = time - m_recording.start();
        return static_cast<std::size_t>(std::max(0.0, since.count()) * SoundRecording::Rate);
    }

    // Negative for bursts that were not played.
    std::vector<double> delays(const std::vector<float>& heard) const
    {
        constexpr double LongestMs = 1000.0 * DriftingMicrophone::BurstSpacingSeconds - 5.0;
        std::vector<double> result;
        for (const auto time : m_device.burstTimes()) {
            const std::size_t at = sampleAt(time);
            const std::size_t answer = TestSupport::firstAbove(heard, BurstThreshold, at);
            const double delay = 1000.0 * static_cast<double>(answer - at) / SoundRecording::Rate;
            result.push_back(answer < heard.size() && delay < LongestMs ? delay : -1.0);
        }
        return result;
    }

    // In a pure tone, each sample follows from the two before it. This stays true if the tone is
    // resampled a little, but not at a tear.
    int countTears(const std::vector<float>& heard) const
    {
        constexpr double Tolerance = 0.003;
        constexpr std::size_t Apart = SoundRecording::Rate / 50;
        constexpr double Step = 2.0 * Pi * DriftingMicrophone::ToneHz / SoundRecording::Rate;
        const auto sample = [&heard](std::size_t i) { return static_cast<double>(heard[i]); };
        const std::vector<DriftingMicrophone::Clock::time_point> bursts = m_device.burstTimes();
        const std::size_t end = std::min(heard.size(), sampleAt(bursts.back()));
        int tears = 0;
        for (std::size_t i = sampleAt(bursts[SettledBurst]); i + 2 < end; ++i) {
            const double expected = 2.0 * std::cos(Step) * sample(i + 1) - sample(i);
            if (std::abs(heard[i]) > BurstThreshold) {
                i += Apart;
            } else if (std::abs(sample(i + 2) - expected) > Tolerance &&
                       TestSupport::firstAbove(heard, BurstThreshold, i) > i + Apart) {
                ++tears;
                i += Apart;
            }
        }
        return tears;
    }

    QString m_name;
    DriftingMicrophone m_device;
    SoundRecording m_recording;
    TestSupport::NoListener m_listener;
    TestSupport::MemoryReport m_report;
    PulseSound m_sound;
    std::unique_ptr<SpeakerBackend> m_speaker;
    std::unique_ptr<MicrophoneBackend> m_microphone;
};

} // namespace

class tst_ListenBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { SoundServer::addTestRows(); }

    // No two devices have exactly the same rate. Here the clocks drift by 1 %, ten times as much as
    // those of bad devices.
    void compensatesClockDrift()
    {
        const QString fault = TestSupport::measuredFault([] {
            QString heard;
            listen(heard);
            return heard;
        });
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    // PipeWire connects a stream to another device if the named one has just gone.
    void playsOnNoOtherSpeaker()
    {
        const std::unique_ptr<SoundServer> server = SoundServer::startForTest();
        QVERIFY(server);
        TestSupport::UnwillingPulse::redirectPlayback("gone", "speaker_a");
        SoundRecording recording(QStringLiteral("speaker_a.monitor"));
        QVERIFY(recording.waitForStart());
        const std::vector<float> tone = TestSupport::tone(0.02, 440.0, -6.0);
        PulseLoop loop;
        std::unique_ptr<ListenBack> listening;
        std::atomic_bool hasFailed = false;
        loop.start();
        loop.post([&] {
            listening = std::make_unique<ListenBack>(loop.api(), QStringLiteral("gone"),
                                                     SoundRecording::Rate);
        });
        QTRY_VERIFY_WITH_TIMEOUT((loop.post([&] {
                                     listening->play(tone.data(), tone.size());
                                     hasFailed = listening->hasFailed();
                                 }),
                                  hasFailed.load()),
                                 TimeoutMs);
        const double since = recording.seconds();
        QTRY_VERIFY_WITH_TIMEOUT((loop.post([&] { listening->play(tone.data(), tone.size()); }),
                                  recording.seconds() > since + 1.0),
                                 TimeoutMs);
        loop.stop();
        listening.reset();
        QVERIFY(recording.peak() < TestSupport::Audible);
    }

private:
    static void listen(QString& fault)
    {
        const std::unique_ptr<SoundServer> server = SoundServer::startForTest();
        QVERIFY(server);
        Listening faster(*server, QStringLiteral("faster"), 1.01, QStringLiteral("speaker_a"));
        Listening slower(*server, QStringLiteral("slower"), 0.99, QStringLiteral("speaker_b"));
        for (Listening* listening : {&faster, &slower}) {
            QVERIFY(listening->waitForStart());
            listening->device().record(Bursts);
        }
        for (Listening* listening : {&faster, &slower}) {
            QTRY_VERIFY_WITH_TIMEOUT(listening->device().hasRecordedAll(), 4 * TimeoutMs);
        }
        fault = QStringList({faster.fault(), slower.fault()}).join(QLatin1Char(' ')).trimmed();
    }
};

QTEST_GUILESS_MAIN(tst_ListenBack)
#include "tst_ListenBack.moc"
