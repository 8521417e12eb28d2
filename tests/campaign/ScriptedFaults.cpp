// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ScriptedFaults.h"

#include "platform/scripted/ScriptedEngine.h"
#include "tests/campaign/CheckRun.h"

#include <QElapsedTimer>
#include <QTimer>

#include <cmath>
#include <iterator>
#include <limits>

using Platform::DeviceInfo;
using Platform::DeviceState;
using Platform::NetworkFigures;
using Platform::ScriptedDevices;

namespace {

constexpr int FreezeMs = 200;
constexpr int StormMs = 1000;
constexpr int ManyDevices = 500;
constexpr int LongName = 10000;
constexpr int RightDelayMs = 37;
constexpr int Moves = 50;

const char* const Scenario = R"({
    "base": "all-well",
    "cameras": [ { "id": "camera-1", "name": "Front camera", "state": "working" },
                 { "id": "camera-2", "name": "Desk camera", "state": "working" } ],
    "microphones": [ { "id": "microphone-1", "name": "Headset microphone", "state": "working" },
                     { "id": "microphone-2", "name": "Desk microphone", "state": "working" } ],
    "speakers": [ { "id": "speaker-1", "name": "Headset", "volume": 60 },
                  { "id": "speaker-2", "name": "Loudspeaker", "volume": 60 } ],
    "network": [ { "delayMs": 37, "lossPercent": 1, "jitterMs": 2 } ]
})";

Step kindAt(const CheckRun& run, Step step)
{
    constexpr Step Kinds[] = {Step::Camera, Step::Speaker, Step::Microphone};
    return step == Step::Network || step == Step::Result ? Kinds[run.injection().random(0, 2)]
                                                         : step;
}

ScriptedDevices& devicesOf(const CheckRun& run, Step kind)
{
    switch (kind) {
    case Step::Speaker:
        return run.engine().scriptedSpeakers();
    case Step::Microphone:
        return run.engine().microphones();
    default:
        return run.engine().cameras();
    }
}

QString randomName(Injection& injection)
{
    const QString names[] = {QStringLiteral("<b>Bold</b><img src=x>"),
                             QStringLiteral("\u202eright to left\u202c"),
                             QString(),
                             QString(LongName, QLatin1Char('M')),
                             QStringLiteral("Studio camera"),
                             QStringLiteral("%1 %2 %n"),
                             QString(QChar(0xd800))};
    return names[injection.random(0, int(std::size(names)) - 1)];
}

template <typename Number>
Number absurd(Injection& injection)
{
    using Limits = std::numeric_limits<Number>;
    const Number numbers[] = {Limits::max(),       Limits::lowest(),   Limits::min(),
                              Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
                              Number(-1),          Number(1000000)};
    return numbers[injection.random(0, int(std::size(numbers)) - 1)];
}

} // namespace

QByteArray ScriptedFaults::scenario()
{
    return Scenario;
}

void ScriptedFaults::unplug(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    devices.unplug(devices.currentId());
    run.expectDevices(kind);
}

void ScriptedFaults::freeze(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const QString id = devices.currentId();
    devices.setState(id, DeviceState::Hung);
    run.wait(FreezeMs);
    run.expectDevices(kind);
    devices.setState(id, DeviceState::Working);
    run.expectDevices(kind);
}

void ScriptedFaults::replug(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const Platform::DeviceList before = devices.devices();
    for (const DeviceInfo& device : before) {
        devices.unplug(device.id);
        run.wait(run.injection().random(0, FreezeMs));
        devices.plug(device, DeviceState::Working);
    }
    run.expectDevices(kind);
}

void ScriptedFaults::rename(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    devices.rename(devices.currentId(), randomName(run.injection()));
    run.wait(run.injection().random(0, FreezeMs));
    devices.rename(devices.currentId(), QStringLiteral("Studio device"));
    run.expectDevices(kind);
}

void ScriptedFaults::switchDevice(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const Platform::DeviceList all = devices.devices();
    for (int i = run.injection().random(2, 6); i > 0; --i) {
        devices.choose(all[static_cast<std::size_t>(i) % all.size()].id);
        run.wait(run.injection().random(0, FreezeMs));
    }
    run.expectDevices(kind);
}

void ScriptedFaults::startLate(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const Platform::DeviceList all = devices.devices();
    for (const DeviceInfo& device : all) {
        devices.unplug(device.id);
    }
    run.expectDevices(kind);
    run.wait(run.injection().random(0, FreezeMs));
    for (const DeviceInfo& device : all) {
        devices.plug(device, DeviceState::Working);
    }
    run.expectDevices(kind);
}

// A thousand a second.
void ScriptedFaults::stormOfLists(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const DeviceInfo hasty{QStringLiteral("hasty"), QStringLiteral("Hasty device")};
    QElapsedTimer clock;
    clock.start();
    int events = 0;
    while (!clock.hasExpired(StormMs)) {
        for (; events < clock.elapsed(); ++events) {
            if (events % 2 == 0) {
                devices.plug(hasty, DeviceState::Working);
            } else {
                devices.unplug(hasty.id);
            }
        }
        run.wait(1);
    }
    devices.unplug(hasty.id);
    run.injection().countSignals(events + 1);
    run.expectDevices(kind);
}

void ScriptedFaults::manyDevices(CheckRun& run, Step step)
{
    const Step kind = kindAt(run, step);
    ScriptedDevices& devices = devicesOf(run, kind);
    const auto idOf = [](int number) { return QStringLiteral("many-%1").arg(number); };
    for (int i = 0; i < ManyDevices; ++i) {
        devices.plug({idOf(i), QStringLiteral("Device %1").arg(i)}, DeviceState::Working);
        run.wait(0); // each is an event of its own
    }
    run.injection().countSignals(ManyDevices);
    run.expectDevices(kind);
    for (int i = 0; i < ManyDevices; ++i) {
        devices.unplug(idOf(i));
        run.wait(0);
    }
    run.injection().countSignals(ManyDevices);
    run.expectDevices(kind);
}

void ScriptedFaults::absurdFigures(CheckRun& run, Step step)
{
    Injection& injection = run.injection();
    for (int i = 0; i < Moves; ++i) {
        NetworkFigures figures;
        const int whole[] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -1,
                             0, 1000000};
        for (int* figure : {&figures.delayMs, &figures.lossPercent, &figures.jitterMs,
                            &figures.sent, &figures.answered, &figures.delay5Ms}) {
            *figure = whole[injection.random(0, int(std::size(whole)) - 1)];
        }
        run.engine().network().setFigures(figures);
        run.engine().microphones().emitLevel(absurd<double>(injection));
        run.engine().microphones().moveVolumeFromOutside(absurd<float>(injection));
        run.engine().scriptedSpeakers().moveVolumeFromOutside(
            whole[injection.random(0, int(std::size(whole)) - 1)]);
        run.wait(1);
    }
    injection.countSignals(4 * Moves);
    NetworkFigures right;
    right.delayMs = RightDelayMs;
    run.engine().network().setFigures(right);
    if (step == Step::Network) {
        run.expectText("label_ND", QStringLiteral("%1ms").arg(RightDelayMs));
    }
}

void ScriptedFaults::foreignVolumes(CheckRun& run, Step step)
{
    Injection& injection = run.injection();
    const Step kind = kindAt(run, step);
    for (int i = 0; i < Moves; ++i) {
        const bool isMuted = injection.random(0, 1) == 0;
        auto& microphones = run.engine().microphones();
        auto& speakers = run.engine().scriptedSpeakers();
        microphones.moveVolumeFromOutside(float(injection.random(0, 150)));
        microphones.setMuted(microphones.currentId(), isMuted);
        speakers.moveVolumeFromOutside(injection.random(0, 100));
        speakers.setMuted(speakers.currentId(), isMuted);
        run.wait(1);
    }
    injection.countSignals(4 * Moves);
    run.engine().microphones().setMuted(run.engine().microphones().currentId(), false);
    run.expectDevices(kind);
}

void ScriptedFaults::cameraServer(CheckRun& run, Step /*step*/)
{
    run.engine().cameras().setServerRunning(false);
    run.expectDevices(Step::Camera);
    run.wait(run.injection().random(0, FreezeMs));
    run.engine().cameras().setServerRunning(true);
    run.expectDevices(Step::Camera);
}

void ScriptedFaults::breakdown(CheckRun& run, Step /*step*/)
{
    run.expectEarlyEnd();
    run.engine().facts().breakDown();
}

void ScriptedFaults::kickOut(CheckRun& run, Step /*step*/)
{
    run.expectEarlyEnd();
    run.engine().facts().kickOut();
}
