// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/Statistics.h"
#include "benchmarks/wasapi/WaveOutPlayer.h"
#include "platform/devices/wasapi/WasapiSound.h"
#include "tests/devices/SoundFiles.h"
#include "tests/devices/wasapi/NativeSound.h"
#include "tests/support/MemoryReport.h"
#include "tests/support/NoListener.h"
#include "tests/support/SoundRecording.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>

// Measures what a listener hears under Wine: from the click to the first audible sample at the
// monitor of the speaker. The peer plays by waveOut, as Qt's player does on Windows. It gets the
// sound decoded, and this program doesn't: that is in its figures.

using namespace Platform;
using TestSupport::NativeSoundServer;
using TestSupport::SoundRate;
using TestSupport::SoundRecording;

namespace {

constexpr int UsualPlays = 30;
constexpr int SmokePlays = 2;
constexpr int TimeoutMs = 8000;
constexpr double MaxRatio = 1.0;

struct Contestant
{
    const char* name;
    std::function<void()> play;
    std::function<void()> stop;
    std::vector<double> delaysMs{};
};

// From the click until the first audible sample arrived here: a few milliseconds late, the same for
// both. Nothing if it wasn't heard.
std::optional<double> click(const Contestant& contestant)
{
    SoundRecording ear(QStringLiteral("speaker_a.monitor"));
    if (!ear.waitForStart()) {
        return std::nullopt;
    }
    std::vector<float> heard;
    const auto isHeard = [&ear, &heard] {
        heard = ear.samples();
        return TestSupport::firstAbove(heard, TestSupport::Audible) < heard.size();
    };
    if (isHeard()) {
        return std::nullopt; // the last one isn't over
    }
    QElapsedTimer clock;
    clock.start();
    contestant.play();
    const bool wasHeard = QTest::qWaitFor(isHeard, TimeoutMs);
    const double nowMs = static_cast<double>(clock.nsecsElapsed()) / 1.0e6;
    contestant.stop();
    const std::size_t since = heard.size() - TestSupport::firstAbove(heard, TestSupport::Audible);
    return wasHeard ? std::make_optional(nowMs - 1000.0 * static_cast<double>(since) / SoundRate)
                    : std::nullopt;
}

bool measure(std::vector<Contestant>& contestants, int plays)
{
    for (int i = 0; i <= plays; ++i) {
        for (Contestant& contestant : contestants) {
            const std::optional<double> delayMs = click(contestant);
            if (!delayMs) {
                std::fprintf(stderr, "%s was not heard\n", contestant.name);
                return false;
            }
            if (i > 0) { // the first one loads libraries
                contestant.delaysMs.push_back(*delayMs);
            }
        }
    }
    return true;
}

double print(const std::vector<Contestant>& contestants)
{
    const Statistics own(contestants.front().delaysMs);
    std::printf("| click to first audible sample, ms (%zu plays) | median | p10 | p90 | max | "
                "ratio of medians |\n|---|---|---|---|---|---|\n",
                own.count());
    for (const Contestant& contestant : contestants) {
        const Statistics delays(contestant.delaysMs);
        std::printf("| %s | %.1f | %.1f | %.1f | %.1f | %.2f |\n", contestant.name, delays.median(),
                    delays.p10(), delays.p90(), delays.maximum(), own.median() / delays.median());
    }
    return own.median() / Statistics(contestants.back().delaysMs).median();
}

// The one that is the server's default, on which the peer plays.
bool chooseSpeaker(const WasapiSound& sound, SpeakerBackend& speaker)
{
    return QTest::qWaitFor(
        [&] {
            for (const DeviceInfo& device : sound.speakers()) {
                if (device.name == QLatin1String("Test Speaker A")) {
                    speaker.setCurrent(device.id);
                }
            }
            return speaker.currentName() == QLatin1String("Test Speaker A");
        },
        TimeoutMs);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool isSmoke = QCoreApplication::arguments().contains(QStringLiteral("--smoke"));
    NativeSoundServer server;
    if (!server.start()) {
        std::fprintf(stderr, "There is no sound server\n");
        return 2;
    }
    TestSupport::MemoryReport report;
    TestSupport::NoListener listener;
    WasapiSound sound(report);
    const std::unique_ptr<SpeakerBackend> speaker = sound.createSpeaker(listener);
    if (!chooseSpeaker(sound, *speaker)) {
        std::fprintf(stderr, "There is no speaker\n");
        return 2;
    }
    const QString path = TestSupport::soundPath(QStringLiteral("Doorbell.mp3"));
    const std::vector<float> samples = TestSupport::readSound(path);
    std::unique_ptr<PlayerBackend> player;
    std::unique_ptr<WaveOutPlayer> peer;
    std::vector<Contestant> contestants{
        {"this program", [&] { player = sound.createPlayer(path, 1.0F, listener); },
         [&] { player.reset(); }},
        {"waveOut", [&] { peer = std::make_unique<WaveOutPlayer>(samples, SoundRate); },
         [&] { peer.reset(); }},
    };
    if (!measure(contestants, isSmoke ? SmokePlays : UsualPlays)) {
        return 2;
    }
    const bool isWithinBounds = print(contestants) <= MaxRatio;
    if (isSmoke) {
        std::puts("It works; too few rounds to judge it.");
        return 0;
    }
    std::puts(isWithinBounds ? "Within the bounds." : "OUT OF BOUNDS.");
    return isWithinBounds ? 0 : 1;
}
