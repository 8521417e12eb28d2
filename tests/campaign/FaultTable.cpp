// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/FaultTable.h"

#include "tests/campaign/PeerFaults.h"
#include "tests/campaign/ProgramFaults.h"
#include "tests/campaign/ScriptedFaults.h"
#include "tests/campaign/ServerFaults.h"

#include <algorithm>
#include <iterator>

namespace {

using Needs = Fault::Needs;

constexpr Fault::Where Each = Fault::Where::EachStep;
constexpr Fault::Where One = Fault::Where::OneStep;
constexpr Fault::Where Any = Fault::Where::Anywhere;

const std::vector<Step> EveryStep(std::begin(AllSteps), std::end(AllSteps));
const std::vector<Step> DeviceSteps{Step::Camera, Step::Speaker, Step::Microphone};

std::vector<Fault> scriptedFaults()
{
    namespace F = ScriptedFaults;
    constexpr Needs S = Needs::Scripted;
    return {
        {"unplug", "the chosen device is unplugged", "the list follows", S, Each, EveryStep, 2, 30,
         F::unplug, nullptr},
        {"freeze", "the chosen device stops responding", "it stays in the list, works again", S,
         Each, EveryStep, 1, 20, F::freeze, nullptr},
        {"replug", "every device is unplugged and plugged in", "the list follows", S, Each,
         EveryStep, 1, 30, F::replug, nullptr},
        {"rename", "the device gets names with markup, of 10,000 characters, empty",
         "the name is plain text", S, Each, EveryStep, 2, 30, F::rename, nullptr},
        {"switch", "another program chooses devices", "the page follows", S, Each, EveryStep, 1, 30,
         F::switchDevice, nullptr},
        {"late", "all devices come only after the page", "the list is filled then", S, Each,
         EveryStep, 2, 30, F::startLate, nullptr},
        {"list-storm", "1,000 list events a second", "the last list is shown", S, Each, EveryStep,
         1, 39, F::stormOfLists, nullptr},
        {"many-devices", "500 devices come and go", "all are listed", S, Each, EveryStep, 1, 10,
         F::manyDevices, nullptr},
        {"absurd-figures", "NaN, infinite, negative and huge figures", "bounded, or not shown", S,
         Each, EveryStep, 2, 20, F::absurdFigures, nullptr},
        {"foreign-volumes", "another program moves volumes and mutes", "the slider follows", S,
         Each, EveryStep, 1, 20, F::foreignVolumes, nullptr},
        {"camera-service", "the camera service ends and comes back", "the list follows", S, Each,
         EveryStep, 1, 20, F::cameraServer, nullptr},
        {"breakdown", "the engine ends the session", "a report with what was answered", S, One,
         EveryStep, 5, 20, F::breakdown, nullptr},
        {"kick-out", "the session is used elsewhere", "a report with what was answered", S, One,
         EveryStep, 5, 20, F::kickOut, nullptr},
    };
}

std::vector<Fault> programFaults()
{
    namespace F = ProgramFaults;
    constexpr Needs P = Needs::Program;
    constexpr bool NotSanitized = false;
    const char* const whole = "the report is whole, or a message says why there is none";
    return {
        {"open", "opening a file of its own fails", whole, P, Any, {}, 2, 30, nullptr, F::open},
        {"open-any", "opening any file fails", whole, P, Any, {}, 2, 30, nullptr, F::openAny},
        {"read", "reading fails", whole, P, Any, {}, 1, 20, nullptr, F::read},
        {"write", "writing fails", whole, P, Any, {}, 2, 30, nullptr, F::write},
        {"sync", "fdatasync fails", whole, P, Any, {}, 2, 30, nullptr, F::sync},
        {"rename-file", "renaming fails", whole, P, Any, {}, 2, 30, nullptr, F::rename},
        {"memory",
         "an allocation of 1 MB or more fails",
         whole,
         P,
         Any,
         {},
         2,
         30,
         nullptr,
         F::memory,
         NotSanitized},
        {"thread", "a thread can't be made", whole, P, Any, {}, 1, 20, nullptr, F::thread},
        {"descriptor", "a socket can't be made", whole, P, Any, {}, 1, 20, nullptr, F::descriptor},
        {"slow-disk", "fdatasync takes up to 2 s", whole, P, Any, {}, 1, 20, nullptr, F::slowDisk},
        {"full-disk",
         "no space from some write on",
         whole,
         P,
         Any,
         {},
         1,
         30,
         nullptr,
         F::fullDisk},
        {"full-tmp",
         "no space in TMPDIR",
         "the report is whole",
         P,
         Any,
         {},
         1,
         10,
         nullptr,
         F::fullTemporaryFolder},
        {"pipe",
         "a named pipe in the place of a file",
         "a message",
         P,
         Any,
         {},
         2,
         20,
         nullptr,
         F::pipes},
        {"signal",
         "a signal in the first second",
         whole,
         P,
         Any,
         {},
         2,
         40,
         nullptr,
         F::earlySignal},
        {"kill-writing",
         "kill -9 while files are written",
         "the former or the new file",
         P,
         Any,
         {},
         3,
         250,
         nullptr,
         F::killWhileWriting},
        {"clock",
         "the clock jumps, up to a year",
         "the report is whole",
         P,
         Any,
         {},
         1,
         20,
         nullptr,
         F::clockJump},
        {"suspend", "stopped for 5 s", "the check goes on", P, Any, {}, 1, 10, nullptr, F::suspend},
        {"shared-store",
         "four programs on one history",
         "every run is in it once",
         P,
         Any,
         {},
         2,
         20,
         nullptr,
         F::sharedStore},
    };
}

std::vector<Fault> serverFaults()
{
    namespace F = ServerFaults;
    constexpr Needs S = Needs::Servers;
    constexpr bool NotSanitized = false; // others of the kind are
    const std::vector<Step> noResult(std::begin(AllSteps), std::end(AllSteps) - 1);
    return {
        {"server-killed", "all servers killed and started again", "empty lists, then all are back",
         S, Each, noResult, 1, 8, F::kill, nullptr},
        {"server-frozen", "all servers stopped for up to 0.6 s", "the last lists", S, Each,
         EveryStep, 1, 10, F::freeze, nullptr},
        {"server-late", "all servers away for 3 s", "the lists are filled, sound within 2.5 s", S,
         One, noResult, 1, 6, F::startLate, nullptr},
        {"sound-replugged", "a speaker and a microphone come and go", "the lists follow", S, Each,
         DeviceSteps, 1, 10, F::replugSound, nullptr},
        {"default-switched", "another default speaker", "the lists stay", S, Each, EveryStep, 1, 8,
         F::switchDefault, nullptr, NotSanitized},
        {"plug-storm", "400 plugs and unplugs, as fast as the server can", "the last list", S, Each,
         DeviceSteps, 1, 10, F::plugStorm, nullptr},
        {"camera-killed", "the camera killed and started again", "the list follows", S, Each,
         EveryStep, 1, 10, F::killCamera, nullptr},
        {"camera-frozen", "the camera stops responding for up to 0.6 s", "it stays in the list", S,
         Each, EveryStep, 1, 8, F::freezeCamera, nullptr, NotSanitized},
        {"camera-stalled", "no frames for up to 0.6 s", "it stays in the list", S, Each, EveryStep,
         1, 8, F::stallCamera, nullptr, NotSanitized},
        {"camera-renamed", "the camera comes back under another name", "the list follows", S, Each,
         EveryStep, 1, 8, F::renameCamera, nullptr, NotSanitized},
    };
}

std::vector<Fault> peerFaults()
{
    namespace F = PeerFaults;
    constexpr Needs P = Needs::Program;
    constexpr bool NotSanitized = false;
    const char* const whole = "the report is whole";
    return {
        {"stun",
         "a STUN server that answers with noise and floods",
         whole,
         P,
         Any,
         {},
         1,
         10,
         nullptr,
         F::stun},
        {"dns",
         "a name server that answers with noise and loops",
         "nothing stays behind",
         P,
         Any,
         {},
         2,
         20,
         nullptr,
         F::dns},
        {"http", "a report server that breaks HTTP", whole, P, Any, {}, 1, 10, nullptr, F::http},
        {"tls", "a report server that breaks TLS", whole, P, Any, {}, 1, 10, nullptr, F::tls},
        {"silent-dns",
         "name servers that don't answer",
         whole,
         P,
         Any,
         {},
         1,
         4,
         nullptr,
         F::silentDns},
        {"unload",
         "the library loaded and unloaded 100 times",
         "nothing stays behind",
         P,
         Any,
         {},
         1,
         1,
         nullptr,
         F::unload,
         NotSanitized},
    };
}

std::vector<Fault> table()
{
    std::vector<Fault> result = scriptedFaults();
    for (const std::vector<Fault>& more : {serverFaults(), programFaults(), peerFaults()}) {
        result.insert(result.end(), more.begin(), more.end());
    }
    return result;
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
