// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/FaultTable.h"

#include "tests/campaign/ScriptedFaults.h"

#include <algorithm>
#include <iterator>

namespace {

using Needs = Fault::Needs;

const std::vector<Step> EveryStep(std::begin(AllSteps), std::end(AllSteps));
const std::vector<Step> DeviceSteps{Step::Camera, Step::Speaker, Step::Microphone};

std::vector<Fault> scriptedFaults()
{
    namespace F = ScriptedFaults;
    constexpr Needs S = Needs::Scripted;
    return {
        {"unplug", "the chosen device is unplugged", "the list follows", S, EveryStep, 2, 30,
         F::unplug, nullptr},
        {"freeze", "the chosen device stops responding", "it stays in the list, works again", S,
         EveryStep, 1, 20, F::freeze, nullptr},
        {"replug", "every device is unplugged and plugged in", "the list follows", S, EveryStep, 1,
         30, F::replug, nullptr},
        {"rename", "the device gets names with markup, of 10,000 characters, empty",
         "the name is plain text", S, EveryStep, 2, 30, F::rename, nullptr},
        {"switch", "another program chooses devices", "the page follows", S, EveryStep, 1, 30,
         F::switchDevice, nullptr},
        {"late", "all devices come only after the page", "the list is filled then", S, EveryStep, 2,
         30, F::startLate, nullptr},
        {"list-storm", "1,000 list events a second", "the last list is shown", S, EveryStep, 1, 39,
         F::stormOfLists, nullptr},
        {"many-devices", "500 devices come and go", "all are listed", S, EveryStep, 1, 10,
         F::manyDevices, nullptr},
        {"absurd-figures", "NaN, infinite, negative and huge figures", "bounded, or not shown", S,
         EveryStep, 2, 20, F::absurdFigures, nullptr},
        {"foreign-volumes", "another program moves volumes and mutes", "the slider follows", S,
         EveryStep, 1, 20, F::foreignVolumes, nullptr},
        {"camera-service", "the camera service ends and comes back", "the list follows", S,
         EveryStep, 1, 20, F::cameraServer, nullptr},
        {"breakdown", "the engine ends the session", "a report with what was answered", S,
         EveryStep, 5, 20, F::breakdown, nullptr},
        {"kick-out", "the session is used elsewhere", "a report with what was answered", S,
         EveryStep, 5, 20, F::kickOut, nullptr},
    };
}

std::vector<Fault> table()
{
    return scriptedFaults();
}

} // namespace

const std::vector<Fault>& FaultTable::all()
{
    static const std::vector<Fault> faults = table();
    return faults;
}

const Fault* FaultTable::find(const QString& name)
{
    const auto found = std::find_if(all().begin(), all().end(), [&name](const Fault& fault) {
        return name == QLatin1String(fault.name);
    });
    return found == all().end() ? nullptr : &*found;
}
