// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/DialogClosing.h"

#include "agent/EnvCheckAgent.h"
#include "benchmarks/Statistics.h"

#include <QElapsedTimer>
#include <array>
#include <cstdio>
#include <functional>
#include <vector>

using namespace DialogStage;

namespace {

constexpr double MaxCloseMs = 100.0;

} // namespace

bool measureClosing(Application& application, TestSupport::SoundServer& server, int rounds)
{
    struct Place
    {
        const char* name;
        std::function<bool()> open;
    };
    const std::array<Place, 3> places = {{
        {"camera, frames arriving", showCamera},
        {"speaker, sound playing", [&server] { return playSound(server); }},
        {"microphone, recording and listening back", [&server] { return record(server); }},
    }};
    std::printf("| close to return, ms (%d closings each) | median | max (at most %.0f) |\n"
                "|---|---|---|\n",
                rounds, MaxCloseMs);
    bool isGood = true;
    for (const Place& place : places) {
        std::vector<double> times;
        for (int i = 0; i < rounds; ++i) {
            QElapsedTimer clock;
            bool isOpen = false;
            application.onceDialogIsPainted([&] {
                callLater([&] {
                    isOpen = place.open();
                    clock.start();
                    endSession();
                });
            });
            EnvCheckAgent::instance()->showEnvCheck(nullptr);
            times.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-6);
            EnvCheckAgent::release();
            settle(SettleMs);
            isGood = isGood && isOpen;
        }
        const Statistics closings(times);
        std::printf("| %s | %.1f | %.1f |\n", place.name, closings.median(), closings.maximum());
        isGood = isGood && closings.maximum() <= MaxCloseMs;
    }
    std::puts("");
    return isGood;
}
