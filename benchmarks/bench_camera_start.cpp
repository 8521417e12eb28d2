// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CameraStage.h"
#include "benchmarks/Statistics.h"

#include <cstdio>

// From the click to the first painted frame. The peer is a bare GStreamer pipeline, from the click
// to the first frame in its appsink. Both take turns on the same camera.

namespace {

constexpr int UsualRounds = 21;
constexpr double MaxRatio = 1.25;
constexpr double FrameMs = 1000.0 / CameraStage::Rate;
constexpr double MaxBusyMs = 5.0;

struct Contestant
{
    const char* kind;
    std::vector<double> delays;
    std::vector<double> busy;
};

std::optional<bool> measure(CameraStage& stage, const BenchmarkOptions& options)
{
    std::vector<Contestant> contestants{{"own", {}, {}}, {"appsink", {}, {}}};
    std::vector<std::unique_ptr<Viewer>> viewers;
    for (const Contestant& contestant : contestants) {
        viewers.push_back(
            std::make_unique<Viewer>(QString::fromLatin1(contestant.kind), stage.node()));
        if (!viewers.back()->waitUntilReady()) {
            return {};
        }
    }
    for (int round = 0; round < options.rounds(); ++round) {
        for (std::size_t i = 0; i < contestants.size(); ++i) {
            Viewer& viewer = *viewers[i];
            const qint64 clicked = viewer.go();
            if (!viewer.waitForFrame()) {
                return {};
            }
            const std::map<int, qint64> frames = framesIn(viewer.takeOutput());
            const double busyMs = viewer.stop();
            qint64 first = frames.begin()->second;
            for (const auto& frame : frames) {
                first = std::min(first, frame.second);
            }
            if (round > 0) { // the first one loads libraries
                contestants[i].delays.push_back(static_cast<double>(first - clicked) * 1e-6);
                contestants[i].busy.push_back(busyMs);
            }
        }
    }
    std::printf(
        "| click to first frame, ms   | median |    p10 |    p90 |    max | one handler at most |\n"
        "|---|---|---|---|---|---|\n");
    for (const Contestant& contestant : contestants) {
        const Statistics delays(contestant.delays);
        std::printf("| %-26s | %6.1f | %6.1f | %6.1f | %6.1f | %19.2f |\n", contestant.kind,
                    delays.median(), delays.p10(), delays.p90(), delays.maximum(),
                    Statistics(contestant.busy).maximum());
    }
    const double own = Statistics(contestants[0].delays).median();
    const double peer = Statistics(contestants[1].delays).median();
    const double busy = Statistics(contestants[0].busy).median();
    std::printf("\nRatio %.2f; %.1f ms of %.1f ms allowed; GUI thread kept %.2f ms.\n", own / peer,
                own, MaxRatio * peer + FrameMs, busy);
    return own <= MaxRatio * peer + FrameMs && busy <= MaxBusyMs;
}

} // namespace

int main(int argc, char** argv)
{
    return runCameraBenchmark(argc, argv, UsualRounds, measure);
}
