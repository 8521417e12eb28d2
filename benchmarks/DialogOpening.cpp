// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogOpening.h"

#include "agent/EnvCheckAgent.h"
#include "benchmarks/DialogPeers.h"
#include "benchmarks/Statistics.h"

#include <QDialog>
#include <QElapsedTimer>
#include <array>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

using namespace DialogStage;

namespace {

constexpr double MaxRatioToWizard = 1.5;

struct Contestant
{
    const char* name;
    std::function<double()> open; // the time that it took, ms
    std::vector<double> times;
    int widgets = 0;
};

using Contestants = std::array<Contestant, 4>;

bool printOpenings(const Contestants& contestants, int rounds)
{
    const double own = Statistics(contestants[0].times).median();
    std::printf(
        "| call to first painted dialog, ms (%d rounds) | widgets | median | p10 | p90 | max | "
        "this dialog's share of it |\n|---|---|---|---|---|---|---|\n",
        rounds);
    for (const Contestant& contestant : contestants) {
        const Statistics times(contestant.times);
        std::printf("| %s | %d | %.1f | %.1f | %.1f | %.1f | %.2f |\n", contestant.name,
                    contestant.widgets, times.median(), times.p10(), times.p90(), times.maximum(),
                    own / times.median());
    }
    const double ratio = own / Statistics(contestants[2].times).median();
    std::printf("Beside the wizard of the same style sheets: %.2f, at most %.1f\n\n", ratio,
                MaxRatioToWizard);
    return ratio <= MaxRatioToWizard;
}

} // namespace

bool measureOpening(Application& application, int rounds)
{
    std::unique_ptr<DialogPeers> peers;
    runDialog(application, [&peers] { peers = std::make_unique<DialogPeers>(*dialog()); });
    QElapsedTimer clock;
    double elapsedMs = 0;
    const auto onPainted = [&clock, &elapsedMs](const std::function<void()>& close) {
        elapsedMs = static_cast<double>(clock.nsecsElapsed()) * 1e-6;
        callLater(close);
    };
    const auto openOwn = [&] {
        application.onceDialogIsPainted([&] { onPainted(endSession); });
        clock.start();
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        EnvCheckAgent::release();
        return elapsedMs;
    };
    int widgets = peers->ownCount();
    const auto openPeer = [&](const std::function<std::unique_ptr<QDialog>()>& make) {
        clock.start();
        const std::unique_ptr<QDialog> peer = make();
        application.onceDialogIsPainted([&] { onPainted([&peer] { peer->reject(); }); });
        peer->exec();
        widgets = DialogPeers::widgetCount(*peer);
        return elapsedMs;
    };
    Contestants contestants = {{
        {"this dialog", openOwn, {}},
        {"plain widgets, put together in the same order",
         [&] { return openPeer([&] { return peers->makeTwin(); }); },
         {}},
        {"QWizard, the same style sheets",
         [&] { return openPeer([&] { return peers->makeWizard(true); }); },
         {}},
        {"QWizard, no style sheets",
         [&] { return openPeer([&] { return peers->makeWizard(false); }); },
         {}},
    }};
    for (int i = 0; i <= rounds; ++i) {
        for (Contestant& contestant : contestants) {
            const double ms = contestant.open();
            settle(SettleMs);
            contestant.widgets = widgets;
            if (i > 0) { // the first ones load what all need
                contestant.times.push_back(ms);
            }
        }
        widgets = peers->ownCount();
    }
    return printOpenings(contestants, rounds);
}
