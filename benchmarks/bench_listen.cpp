// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/Statistics.h"
#include "platform/devices/pulse/PulseSound.h"
#include "tests/support/ListeningRoom.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"

#include <QCoreApplication>
#include <QTest>
#include <cstdio>

// Measures the delay from the microphone to the speaker. The peer is the server's own loopback
// module at 20 ms, on the same server.

using namespace Platform;
using TestSupport::ListeningRoom;
using TestSupport::SoundServer;

namespace {

constexpr int UsualBursts = 200;
constexpr int SettleMs = 3000;
constexpr int SmokeSettleMs = 500;
constexpr double MaxRatio = 1.0;
constexpr double MaxP90Ms = 30.0;
constexpr double MaxMs = 60.0;

struct Outcome
{
    Statistics delays{{}};
    int lost = 0;
};

Outcome measure(ListeningRoom& room, const BenchmarkOptions& options)
{
    const int bursts = options.rounds();
    QTest::qWait(options.isSmoke() ? SmokeSettleMs : SettleMs);
    std::vector<double> heard;
    int answered = 0;
    for (const double delay : room.measureDelays(bursts)) {
        if (delay >= 0.0) {
            heard.push_back(delay);
            ++answered;
        }
    }
    return {Statistics(heard), bursts - answered};
}

void print(const char* name, const Outcome& outcome, double peerMedian)
{
    std::printf("| %-26s | %6.1f | %6.1f | %6.1f | %4d | %5.2f |\n", name, outcome.delays.median(),
                outcome.delays.p90(), outcome.delays.maximum(), outcome.lost,
                outcome.delays.median() / peerMedian);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const BenchmarkOptions options(application, UsualBursts);
    SoundServer server(options.server());
    if (!server.start()) {
        return 2;
    }
    ListeningRoom room(server);
    if (!room.isBuilt()) {
        std::fprintf(stderr, "The devices of the measurement can't be made\n");
        return 2;
    }

    const QByteArray loopback =
        server.control({QStringLiteral("load-module"), QStringLiteral("module-loopback"),
                        QStringLiteral("source=room_microphone"),
                        QStringLiteral("sink=room_speaker"), QStringLiteral("latency_msec=20")});
    const Outcome peer = measure(room, options);
    server.unplug(loopback);

    TestSupport::MemoryReport report;
    PulseSound sound(report);
    TestSupport::NoListener listener;
    const std::unique_ptr<SpeakerBackend> speaker = sound.createSpeaker(listener);
    const std::unique_ptr<MicrophoneBackend> microphone = sound.createMicrophone(listener);
    speaker->setCurrent(QStringLiteral("room_speaker"));
    microphone->setCurrent(QStringLiteral("room_microphone"));
    microphone->open();
    microphone->setListening(true);
    const Outcome own = measure(room, options);

    std::printf("| %d bursts, ms               | median |    p90 |    max | lost | ratio |\n"
                "|---|---|---|---|---|---|\n",
                options.rounds());
    print("module-loopback at 20 ms", peer, peer.delays.median());
    print("listening to oneself", own, peer.delays.median());
    if (own.delays.count() == 0) {
        std::fprintf(stderr, "Nothing was heard\n");
        return 2;
    }
    const bool isGood = own.delays.median() <= MaxRatio * peer.delays.median() &&
                        own.delays.p90() <= MaxP90Ms && own.delays.maximum() <= MaxMs &&
                        own.lost == 0;
    return options.verdict(isGood);
}
