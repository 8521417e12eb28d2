// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CameraStage.h"
#include "benchmarks/Statistics.h"

#include <QTest>
#include <cstdio>

// How old a frame is when it is painted, and how many are painted at all. The peer is a plain loop
// from an appsink to a widget. Both take turns on the same camera.

namespace {

constexpr int UsualRounds = 5;
constexpr int RoundMs = 5000;
constexpr int SmokeRoundMs = 1000;
constexpr double MaxRatio = 1.5;
constexpr double MaxP99Ms = 16.7;
constexpr double MinPaintedShare = 29.5 / 30.0;
constexpr int EdgeFrames = 5; // at both ends of a round; they are not counted

struct Contestant
{
    const char* kind;
    std::vector<double> medians;
    std::vector<double> p99s;
    std::vector<double> shares;
};

std::optional<bool> measure(CameraStage& stage, const BenchmarkOptions& options)
{
    std::vector<Contestant> contestants{{"own", {}, {}, {}}, {"widget", {}, {}, {}}};
    for (int round = 0; round < options.rounds(); ++round) {
        for (Contestant& contestant : contestants) {
            Viewer viewer(QString::fromLatin1(contestant.kind), stage.node());
            if (!viewer.waitUntilReady()) {
                return {};
            }
            viewer.go();
            if (!viewer.waitForFrame()) {
                return {};
            }
            QTest::qWait(options.isSmoke() ? SmokeRoundMs : RoundMs);
            std::map<int, qint64> painted = framesIn(viewer.takeOutput());
            viewer.stop();
            const std::map<int, qint64> sent = framesIn(stage.camera().output());
            const int first = painted.begin()->first + EdgeFrames;
            const int last = painted.rbegin()->first - EdgeFrames;
            std::vector<double> ages;
            for (int number = first; number <= last; ++number) {
                const auto it = painted.find(number);
                const auto origin = sent.find(number);
                if (it != painted.end() && origin != sent.end()) {
                    ages.push_back(static_cast<double>(it->second - origin->second) * 1e-6);
                }
            }
            const Statistics age(ages);
            contestant.medians.push_back(age.median());
            contestant.p99s.push_back(age.quantile(0.99));
            contestant.shares.push_back(static_cast<double>(ages.size()) / (last - first + 1));
        }
    }
    std::printf("| age when painted, ms | median |    p99 | painted of 30 |\n|---|---|---|---|\n");
    for (const Contestant& contestant : contestants) {
        std::printf("| %-20s | %6.2f | %6.2f | %13.2f |\n", contestant.kind,
                    Statistics(contestant.medians).median(), Statistics(contestant.p99s).median(),
                    30.0 * Statistics(contestant.shares).median());
    }
    const double own = Statistics(contestants[0].medians).median();
    const double peer = Statistics(contestants[1].medians).median();
    std::printf("Ratio %.2f.\n", own / peer);
    return own <= MaxRatio * peer && Statistics(contestants[0].p99s).median() <= MaxP99Ms &&
           Statistics(contestants[0].shares).median() >= MinPaintedShare;
}

} // namespace

int main(int argc, char** argv)
{
    return runCameraBenchmark(argc, argv, UsualRounds, measure);
}
