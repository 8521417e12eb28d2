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

constexpr int Blocks = 2; // in which each of the two takes its turn

struct Outcome
{
    std::vector<double> delays;
    int lost = 0;
};

void measure(ListeningRoom& room, int bursts, int settleMs, Outcome& outcome)
{
    QTest::qWait(settleMs);
    for (const double delay : room.measureDelays(bursts)) {
        if (delay >= 0.0) {
            outcome.delays.push_back(delay);
        } else {
            ++outcome.lost;
        }
    }
}

void print(const char* name, const Outcome& outcome, double peerMedian)
{
    const Statistics delays(outcome.delays);
    std::printf("| %s | %.1f | %.1f | %.1f | %.1f | %d | %.2f |\n", name, delays.median(),
                delays.p10(), delays.p90(), delays.maximum(), outcome.lost,
                delays.median() / peerMedian);
}

void measurePeer(SoundServer& server, ListeningRoom& room, int bursts, int settleMs,
                 Outcome& outcome)
{
    const QByteArray loopback =
        server.control({QStringLiteral("load-module"), QStringLiteral("module-loopback"),
                        QStringLiteral("source=room_microphone"),
                        QStringLiteral("sink=room_speaker"), QStringLiteral("latency_msec=20")});
    measure(room, bursts, settleMs, outcome);
    server.unplug(loopback);
}

void measureOwn(ListeningRoom& room, int bursts, int settleMs, Outcome& outcome)
{
    TestSupport::MemoryReport report;
    PulseSound sound(report);
    TestSupport::NoListener listener;
    const std::unique_ptr<SpeakerBackend> speaker = sound.createSpeaker(listener);
    const std::unique_ptr<MicrophoneBackend> microphone = sound.createMicrophone(listener);
    speaker->setCurrent(QStringLiteral("room_speaker"));
    microphone->setCurrent(QStringLiteral("room_microphone"));
    microphone->open();
    microphone->setListening(true);
    measure(room, bursts, settleMs, outcome);
}

std::optional<bool> compare(SoundServer& server, ListeningRoom& room,
                            const BenchmarkOptions& options)
{
    const int settleMs = options.isSmoke() ? SmokeSettleMs : SettleMs;
    Outcome peer;
    Outcome own;
    for (int block = 0; block < Blocks; ++block) {
        const int bursts = (options.rounds() + block) / Blocks;
        measurePeer(server, room, bursts, settleMs, peer);
        measureOwn(room, bursts, settleMs, own);
    }
    const double peerMedian = Statistics(peer.delays).median();
    std::printf("| %d bursts, ms | median | p10 | p90 | max | lost | ratio |\n"
                "|---|---|---|---|---|---|---|\n",
                options.rounds());
    print("module-loopback at 20 ms", peer, peerMedian);
    print("listening to oneself", own, peerMedian);
    std::puts("");
    if (own.delays.empty()) {
        std::fprintf(stderr, "Nothing was heard\n");
        return {};
    }
    const Statistics delays(own.delays);
    return delays.median() <= MaxRatio * peerMedian && delays.p90() <= MaxP90Ms &&
           delays.maximum() <= MaxMs && own.lost == 0;
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
    return options.judge([&] { return compare(server, room, options); });
}
