// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkOptions.h"
#include "benchmarks/CameraStage.h"
#include "benchmarks/ProcessorClock.h"
#include "benchmarks/Statistics.h"

#include <QElapsedTimer>
#include <QTest>
#include <cstdio>

// The processor time that showing a camera takes, above receiving its frames and dropping them. The
// peers are a plain GStreamer sink and Qt's player. All take turns on the same camera.

namespace {

constexpr int UsualRounds = 5;
constexpr int SettleMs = 700;
constexpr int RoundMs = 2000;
constexpr int SmokeRoundMs = 200;
constexpr double MaxRatioToSink = 0.4;
constexpr double MaxRatioToPlayer = 0.35;

struct Contestant
{
    const char* kind;
    std::vector<double> costs;
};

struct Camera
{
    const char* text;
    const char* pixelFormat;
    QSize size;
};

constexpr Camera Cameras[] = {{"YUY2, 1280 x 720", "YUY2", {1280, 720}},
                              {"MJPG, 1920 x 1080", "MJPG", {1920, 1080}}};

// The share of a core that showing the camera takes, in percent; nothing if it shows nothing.
std::optional<double> costOf(const Contestant& contestant, const Camera& camera,
                             const QString& node, bool isSmoke)
{
    const bool isJpeg = qstrcmp(camera.pixelFormat, "MJPG") == 0;
    Viewer viewer(
        QString::fromLatin1(contestant.kind), node,
        {isJpeg ? QStringLiteral("jpeg") : QStringLiteral("raw"), QStringLiteral("silent")});
    if (!viewer.waitUntilReady()) {
        return {};
    }
    viewer.go();
    QTest::qWait(isSmoke ? SmokeRoundMs : SettleMs);
    const ProcessorClock processor(viewer.processId());
    QElapsedTimer clock;
    clock.start();
    QTest::qWait(isSmoke ? SmokeRoundMs : RoundMs);
    const double used = processor.elapsedMs();
    const double result = 100.0 * used / static_cast<double>(clock.elapsed());
    if (qIsNaN(viewer.stop()) || used <= 0.0) {
        std::fprintf(stderr, "%s shows nothing\n", contestant.kind);
        return {};
    }
    return result;
}

bool print(const Camera& camera, const std::vector<Contestant>& contestants)
{
    std::printf("%s\n\n| %% of a core | median | p10 | p90 | above fakesink | own ratio |\n"
                "|---|---|---|---|---|---|\n",
                camera.text);
    const double floor = Statistics(contestants[0].costs).median();
    const double own = Statistics(contestants[1].costs).median() - floor;
    for (const Contestant& contestant : contestants) {
        const Statistics costs(contestant.costs);
        const double above = costs.median() - floor;
        std::printf("| %s | %.2f | %.2f | %.2f | %.2f | %.2f |\n", contestant.kind, costs.median(),
                    costs.p10(), costs.p90(), above, above > 0 ? own / above : 0.0);
    }
    std::puts("");
    const double sink = Statistics(contestants[2].costs).median() - floor;
    const double player = Statistics(contestants[3].costs).median() - floor;
    return own <= MaxRatioToSink * sink && own <= MaxRatioToPlayer * player;
}

std::optional<bool> measure(CameraStage& stage, const BenchmarkOptions& options)
{
    bool isGood = true;
    for (const Camera& camera : Cameras) {
        if (!stage.plug(QString::fromLatin1(camera.pixelFormat), camera.size)) {
            return {};
        }
        std::vector<Contestant> contestants{
            {"fakesink", {}}, {"own", {}}, {"ximagesink", {}}, {"mediaplayer", {}}};
        for (int round = 0; round < options.rounds(); ++round) {
            for (Contestant& contestant : contestants) {
                const std::optional<double> cost =
                    costOf(contestant, camera, stage.node(), options.isSmoke());
                if (!cost) {
                    return {};
                }
                contestant.costs.push_back(*cost);
            }
        }
        isGood = print(camera, contestants) && isGood;
    }
    return isGood;
}

} // namespace

int main(int argc, char** argv)
{
    return runCameraBenchmark(argc, argv, UsualRounds, measure);
}
