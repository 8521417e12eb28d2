// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/MonitorEar.h"
#include "benchmarks/ProcessorClock.h"
#include "benchmarks/Statistics.h"
#include "platform/devices/pulse/PulseSound.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/SoundRecording.h"
#include "tests/support/SoundServer.h"

#include <QApplication>
#include <QAudioDeviceInfo>
#include <QAudioInput>
#include <QProgressBar>
#include <QTest>
#include <cstdio>
#include <cstring>
#include <memory>

// Measures the delay from a sound at the microphone to the value of the bar, and what the bar costs
// the GUI thread. The peer is Qt's audio input with a notification every 20 ms.

using namespace Platform;
using TestSupport::SoundServer;
using TestSupport::SoundSource;

namespace {

constexpr int TimeoutMs = 3000;
constexpr int UsualBursts = 40;
constexpr int Blocks = 2; // in which each of the two takes its turn
constexpr int CostMs = 5000;
constexpr int SmokeCostMs = 500;
constexpr float LoudSample = 0.01F;
constexpr double MaxRatio = 1.25;
constexpr double MaxP90Ms = 25.0;
constexpr double MaxCostPercent = 1.0;

using TimePoint = MonitorEar::Clock::time_point;

// The level bar, as on the microphone page.
struct Bar
{
    QProgressBar widget;
    std::optional<TimePoint> lit;

    Bar()
    {
        widget.setTextVisible(false);
        widget.setFixedSize(210, 14);
        widget.show();
    }

    void set(double level)
    {
        widget.setValue(static_cast<int>(100.0 * level));
        if (widget.value() > 20 && !lit) {
            lit = MonitorEar::Clock::now();
        }
    }
};

class OwnLevel final : public MicrophoneBackend::Listener
{
public:
    explicit OwnLevel(Bar& bar) : m_bar(bar) {}

    void microphoneListChanged() override {}
    void currentMicrophoneChanged(const QString&) override {}
    void levelMeasured(double level) override { m_bar.set(level); }
    void microphoneVolumeChanged(int) override {}
    void microphoneInfoChanged() override {}
    void microphoneWorkStateChanged(const QString&, bool) override {}
    void systemVolumeChanged(float) override {}

private:
    Bar& m_bar;
};

// How a plain Qt program would do it.
class QtLevel
{
public:
    explicit QtLevel(Bar& bar)
    {
        QAudioFormat format;
        format.setSampleRate(48000);
        format.setChannelCount(1);
        format.setSampleSize(16);
        format.setSampleType(QAudioFormat::SignedInt);
        format.setByteOrder(QAudioFormat::LittleEndian);
        format.setCodec(QStringLiteral("audio/pcm"));
        QAudioDeviceInfo chosen = QAudioDeviceInfo::defaultInputDevice();
        for (const QAudioDeviceInfo& device :
             QAudioDeviceInfo::availableDevices(QAudio::AudioInput)) {
            if (device.deviceName() == QLatin1String("microphone_a")) {
                chosen = device;
            }
        }
        m_input = std::make_unique<QAudioInput>(chosen, format);
        m_input->setNotifyInterval(20);
        QIODevice* device = m_input->start();
        const auto look = [&bar, device] {
            const QByteArray data = device->readAll();
            int peak = 0;
            for (int i = 0; i + 1 < data.size(); i += 2) {
                qint16 sample = 0;
                std::memcpy(&sample, data.constData() + i, sizeof sample);
                peak = std::max(peak, std::abs(static_cast<int>(sample)));
            }
            if (!data.isEmpty()) {
                bar.set(peak / 32768.0 > static_cast<double>(LoudSample) ? 1.0 : 0.0);
            }
        };
        // Notifications begin only after the first read, so readyRead() starts them.
        QObject::connect(m_input.get(), &QAudioInput::notify, device, look);
        QObject::connect(device, &QIODevice::readyRead, device, look);
    }

private:
    std::unique_ptr<QAudioInput> m_input;
};

std::vector<double> measure(Bar& bar, MonitorEar& ear, int bursts)
{
    std::vector<double> delays;
    for (int i = 0; i < bursts; ++i) {
        ear.arm();
        if (!QTest::qWaitFor([&ear] { return ear.isArmed(); }, TimeoutMs)) {
            break;
        }
        QTest::qWait(300 +
                     i * 7 % 20); // until the bar is down; not a multiple of the server's cycle
        bar.lit.reset();
        const SoundSource burst(QStringLiteral("voice"), TestSupport::tone(0.1, 1000.0, -6.0));
        if (QTest::qWaitFor([&] { return bar.lit && ear.onset(); }, TimeoutMs)) {
            delays.push_back(millisecondsBetween(*ear.onset(), *bar.lit));
        }
    }
    return delays;
}

// Load of one core by the GUI thread while somebody speaks.
double costPercent(int milliseconds)
{
    const SoundSource voice(QStringLiteral("voice"),
                            TestSupport::tone(milliseconds / 1000.0, 300.0, -20));
    const ProcessorClock clock(ProcessorClock::Of::Thread);
    QTest::qWait(milliseconds);
    return 100.0 * clock.elapsedMs() / milliseconds;
}

// What one of the two showed and took, over all blocks.
struct Runs
{
    std::vector<double> delays;
    std::vector<double> costs;

    void add(const std::vector<double>& more, double cost)
    {
        delays.insert(delays.end(), more.begin(), more.end());
        costs.push_back(cost);
    }
};

void print(const char* name, const Runs& runs, double peerMedian)
{
    const Statistics delays(runs.delays);
    std::printf("| %s | %zu | %.1f | %.1f | %.1f | %.1f | %.2f %% | %.2f |\n", name, delays.count(),
                delays.median(), delays.p10(), delays.p90(), delays.maximum(),
                Statistics(runs.costs).median(), delays.median() / peerMedian);
}

std::optional<bool> judgement(const Runs& peer, const Runs& own, double idle)
{
    const double peerMedian = Statistics(peer.delays).median();
    std::printf("| sound to bar, ms | heard | median | p10 | p90 | max | GUI thread | ratio |\n"
                "|---|---|---|---|---|---|---|---|\n");
    print("QAudioInput, 20 ms", peer, peerMedian);
    print("microphone", own, peerMedian);
    std::printf("\nThe GUI thread without either: %.2f %%\n", idle);
    if (own.delays.empty()) {
        std::fprintf(stderr, "Nothing was heard\n");
        return {};
    }
    const Statistics delays(own.delays);
    return delays.median() <= MaxRatio * peerMedian && delays.p90() <= MaxP90Ms &&
           Statistics(own.costs).median() < MaxCostPercent;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const BenchmarkOptions options(application, UsualBursts);
    const int bursts = options.rounds();
    const int costMs = options.isSmoke() ? SmokeCostMs : CostMs;
    SoundServer server(options.server());
    if (!server.start()) {
        return 2;
    }
    MonitorEar ear(QStringLiteral("microphone_a"));
    Bar bar;
    return options.judge([&]() -> std::optional<bool> {
        const double idle = costPercent(costMs);
        Runs peer;
        Runs own;
        TestSupport::MemoryReport report;
        PulseSound sound(report);
        for (int block = 0; block < Blocks; ++block) { // by turns
            const int count = (bursts + block) / Blocks;
            {
                const QtLevel level(bar);
                peer.add(measure(bar, ear, count), costPercent(costMs / Blocks));
            }
            OwnLevel listener(bar);
            const std::unique_ptr<MicrophoneBackend> microphone = sound.createMicrophone(listener);
            microphone->open();
            own.add(measure(bar, ear, count), costPercent(costMs / Blocks));
        }
        return judgement(peer, own, idle);
    });
}
