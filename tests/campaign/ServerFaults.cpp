// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ServerFaults.h"

#include "tests/campaign/CheckRun.h"
#include "tests/campaign/DeviceRig.h"
#include "tests/support/CameraProcess.h"
#include "tests/support/PlugStorm.h"

#include <csignal>

using namespace TestSupport;

namespace {

constexpr int FreezeMs = 600;
constexpr int AwayMs = 3000;
constexpr int StormRounds = 200;
constexpr Step DeviceSteps[] = {Step::Camera, Step::Speaker, Step::Microphone};

bool isOfDevice(Step step)
{
    return step != Step::Network && step != Step::Result;
}

void expectUsual(CheckRun& run)
{
    for (const Step step : DeviceSteps) {
        run.expectDevices(step, run.rig().devices(step));
    }
}

void expectNone(CheckRun& run)
{
    for (const Step step : DeviceSteps) {
        run.expectDevices(step, {});
    }
}

void restart(CheckRun& run)
{
    run.unmetered([&run] {
        run.injection().require(run.rig().restart(), QStringLiteral("the servers don't start"));
    });
}

} // namespace

void ServerFaults::kill(CheckRun& run, Step /*step*/)
{
    run.unmetered([&run] { run.rig().kill(); });
    expectNone(run);
    restart(run);
    expectUsual(run);
}

void ServerFaults::freeze(CheckRun& run, Step /*step*/)
{
    run.rig().server().freeze();
    run.wait(run.injection().random(0, FreezeMs));
    run.rig().server().thaw();
    expectUsual(run);
}

void ServerFaults::startLate(CheckRun& run, Step /*step*/)
{
    run.unmetered([&run] { run.rig().kill(); });
    run.wait(AwayMs);
    restart(run);
    expectUsual(run);
}

void ServerFaults::replugSound(CheckRun& run, Step step)
{
    if (!isOfDevice(step)) {
        return;
    }
    SoundServer& server = run.rig().server();
    const QString name = QStringLiteral("Late device");
    const QByteArray speaker = server.plugSpeaker(QStringLiteral("late_speaker"), name);
    const QByteArray microphone = server.plugMicrophone(QStringLiteral("late_microphone"), name);
    for (const Step kind : {Step::Speaker, Step::Microphone}) {
        run.expectDevices(kind, run.rig().devices(kind) + QStringList{name});
    }
    server.unplug(microphone);
    server.unplug(speaker);
    expectUsual(run);
}

void ServerFaults::switchDefault(CheckRun& run, Step /*step*/)
{
    SoundServer& server = run.rig().server();
    for (const char* speaker : {"speaker_b", "speaker_a"}) {
        server.control({QStringLiteral("set-default-sink"), QLatin1String(speaker)});
        run.wait(run.injection().random(0, FreezeMs));
    }
    expectUsual(run);
}

void ServerFaults::plugStorm(CheckRun& run, Step /*step*/)
{
    const PlugStorm storm(run.rig().server(), StormRounds);
    while (!storm.isOver()) {
        run.wait(10);
    }
    run.injection().countSignals(storm.events());
    expectUsual(run);
}

void ServerFaults::killCamera(CheckRun& run, Step /*step*/)
{
    run.unmetered([&run] { run.rig().endCamera(); });
    run.expectDevices(Step::Camera, {});
    run.unmetered(
        [&run] { run.injection().require(run.rig().startCamera(), QStringLiteral("no camera")); });
    run.expectDevices(Step::Camera, run.rig().devices(Step::Camera));
}

void ServerFaults::freezeCamera(CheckRun& run, Step /*step*/)
{
    run.rig().camera().sendSignal(SIGSTOP);
    run.wait(run.injection().random(0, FreezeMs));
    run.rig().camera().sendSignal(SIGCONT);
    run.expectDevices(Step::Camera, run.rig().devices(Step::Camera));
}

void ServerFaults::stallCamera(CheckRun& run, Step /*step*/)
{
    run.rig().camera().command("stall");
    run.wait(run.injection().random(0, FreezeMs));
    run.rig().camera().command("resume");
    run.expectDevices(Step::Camera, run.rig().devices(Step::Camera));
}

// It comes back under another name.
void ServerFaults::renameCamera(CheckRun& run, Step /*step*/)
{
    for (const QString& name : {QStringLiteral("<b>Renamed</b> camera"), DeviceRig::CameraName}) {
        run.unmetered([&run, &name] {
            run.injection().require(run.rig().startCamera(name), QStringLiteral("no camera"));
        });
        run.expectDevices(Step::Camera, {name});
    }
}
