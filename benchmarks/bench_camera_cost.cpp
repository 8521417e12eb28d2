// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CameraStage.h"
#include "benchmarks/Statistics.h"

#include <QElapsedTimer>
#include <QTest>
#include <cstdio>

// The processor time that showing a camera takes, above receiving its frames and dropping them. The
// peers are a plain GStreamer sink and Qt's player. All take turns on the same camera.

namespace {

constexpr int UsualRounds = 5;
constexpr int SettleMs = 1000;
constexpr int RoundMs = 3000;
constexpr int SmokeRoundMs = 500;
constexpr double MaxRatioToSink = 1.0;
constexpr double MaxRatioToPlayer = 0.6;

struct Contestant
{
    const char* kind;
    std::vector<double> costs;
};

std::optional<bool> measure(CameraStage& stage, const BenchmarkOptions& options)
{
    std::vector<Contestant> contestants{
        {"fakesink", {}}, {"own", {}}, {"ximagesink", {}}, {"mediaplayer", {}}};
    for (int round = 0; round < options.rounds(); ++round) {
        for (Contestant& contestant : contestants) {
            Viewer viewer(QString::fromLatin1(contestant.kind), stage.node());
            if (!viewer.waitUntilReady()) {
                return {};
            }
            viewer.go();
            QTest::qWait(SettleMs);
            const double before = viewer.processorMs();
            QElapsedTimer clock;
            clock.start();
            QTest::qWait(options.isSmoke() ? SmokeRoundMs : RoundMs);
            const double used = viewer.processorMs() - before;
            contestant.costs.push_back(100.0 * used / static_cast<double>(clock.elapsed()));
            if (qIsNaN(viewer.stop()) || used <= 0.0) {
                std::fprintf(stderr, "%s shows nothing\n", contestant.kind);
                return {};
            }
        }
    }
    const double floor = Statistics(contestants[0].costs).median();
    const double own = Statistics(contestants[1].costs).median() - floor;
    std::printf("| share of a core, percent | median | above fakesink | own ratio |\n"
                "|---|---|---|---|\n"
                "| fakesink                 | %6.2f |                |           |\n",
                floor);
    contestants.erase(contestants.begin());
    for (const Contestant& contestant : contestants) {
        const double median = Statistics(contestant.costs).median();
        std::printf("| %-24s | %6.2f | %14.2f | %9.2f |\n", contestant.kind, median, median - floor,
                    own / (median - floor));
    }
    const double sink = Statistics(contestants[1].costs).median() - floor;
    const double player = Statistics(contestants[2].costs).median() - floor;
    return own <= MaxRatioToSink * sink && own <= MaxRatioToPlayer * player;
}

} // namespace

int main(int argc, char** argv)
{
    return runCameraBenchmark(argc, argv, UsualRounds, measure);
}
