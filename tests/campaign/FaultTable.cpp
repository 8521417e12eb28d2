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

struct Repetitions
{
    int quick;
    int full;
};

constexpr bool NotSanitized = false;
constexpr Fault::Where Each = Fault::Where::EachStep;
constexpr Fault::Where One = Fault::Where::OneStep;

const std::vector<Step> EveryStep(std::begin(AllSteps), std::end(AllSteps));
const std::vector<Step> NoResult(std::begin(AllSteps), std::end(AllSteps) - 1);
const std::vector<Step> DeviceSteps{Step::Camera, Step::Speaker, Step::Microphone};

Fault dialog(const char* name, const char* what, const char* now, Fault::Needs needs,
             Fault::Where where, const std::vector<Step>& steps, Repetitions repetitions,
             Fault::AtStep atStep, bool isSanitized = true)
{
    return {name,   what,    now,        needs, where, steps, repetitions.quick, repetitions.full,
            atStep, nullptr, isSanitized};
}

Fault program(const char* name, const char* what, const char* now, Repetitions repetitions,
              Fault::Whole whole, bool isSanitized = true)
{
    return {name,
            what,
            now,
            Fault::Needs::Program,
            Fault::Where::Anywhere,
            {},
            repetitions.quick,
            repetitions.full,
            nullptr,
            whole,
            isSanitized};
}

std::vector<Fault> scriptedFaults()
{
    namespace F = ScriptedFaults;
    constexpr Fault::Needs S = Fault::Needs::Scripted;
    return {
        dialog("unplug", "the chosen device is unplugged", "the list follows", S, Each, EveryStep,
               {2, 30}, F::unplug),
        dialog("freeze", "the chosen device stops responding", "it stays in the list, works again",
               S, Each, EveryStep, {1, 20}, F::freeze),
        dialog("replug", "every device is unplugged and plugged in", "the list follows", S, Each,
               EveryStep, {1, 30}, F::replug),
        dialog("rename", "the device gets names with markup, of 10,000 characters, empty",
               "the name is plain text", S, Each, EveryStep, {2, 30}, F::rename),
        dialog("switch", "another program chooses devices", "the page follows", S, Each, EveryStep,
               {1, 30}, F::switchDevice),
        dialog("late", "all devices come only after the page", "the list is filled then", S, Each,
               EveryStep, {2, 30}, F::startLate),
        dialog("list-storm", "1,000 list events a second", "the last list is shown", S, Each,
               EveryStep, {1, 39}, F::stormOfLists),
        dialog("many-devices", "500 devices come and go", "all are listed", S, Each, EveryStep,
               {1, 10}, F::manyDevices),
        dialog("absurd-figures", "NaN, infinite, negative and huge figures",
               "bounded, or not shown", S, Each, EveryStep, {2, 20}, F::absurdFigures),
        dialog("foreign-volumes", "another program moves volumes and mutes", "the slider follows",
               S, Each, EveryStep, {1, 20}, F::foreignVolumes),
        dialog("camera-service", "the camera service ends and comes back", "the list follows", S,
               Each, EveryStep, {1, 20}, F::cameraServer),
        dialog("breakdown", "the engine ends the session", "a report with what was answered", S,
               One, EveryStep, {5, 20}, F::breakdown),
        dialog("kick-out", "the session is used elsewhere", "a report with what was answered", S,
               One, EveryStep, {5, 20}, F::kickOut),
    };
}

std::vector<Fault> serverFaults()
{
    namespace F = ServerFaults;
    constexpr Fault::Needs S = Fault::Needs::Servers;
    return {
        dialog("server-killed", "all servers killed and started again",
               "empty lists, then all are back", S, Each, NoResult, {1, 8}, F::kill),
        dialog("server-frozen", "all servers stopped for up to 0.6 s", "the last lists", S, Each,
               EveryStep, {1, 10}, F::freeze),
        dialog("server-late", "all servers away for 3 s", "the lists are filled", S, One, NoResult,
               {1, 6}, F::startLate),
        dialog("sound-replugged", "a speaker and a microphone come and go", "the lists follow", S,
               Each, DeviceSteps, {1, 10}, F::replugSound),
        dialog("default-switched", "another default speaker", "the lists stay", S, Each, EveryStep,
               {1, 8}, F::switchDefault, NotSanitized),
        dialog("plug-storm", "400 plugs and unplugs, as fast as the server can", "the last list", S,
               Each, DeviceSteps, {1, 10}, F::plugStorm),
        dialog("camera-killed", "the camera killed and started again", "the list follows", S, Each,
               EveryStep, {1, 10}, F::killCamera),
        dialog("camera-frozen", "the camera stops responding for up to 0.6 s",
               "it stays in the list", S, Each, EveryStep, {1, 8}, F::freezeCamera, NotSanitized),
        dialog("camera-stalled", "no frames for up to 0.6 s", "it stays in the list", S, Each,
               EveryStep, {1, 8}, F::stallCamera, NotSanitized),
        dialog("camera-renamed", "the camera comes back under another name", "the list follows", S,
               Each, EveryStep, {1, 8}, F::renameCamera, NotSanitized),
    };
}

std::vector<Fault> failingCalls()
{
    namespace F = ProgramFaults;
    const char* const whole = "the report is whole, or a message says why there is none";
    return {
        program("open", "opening a file of its own fails", whole, {2, 30}, F::open),
        program("open-any", "opening any file fails", whole, {2, 30}, F::openAny),
        program("read", "reading fails", whole, {1, 20}, F::read),
        program("write", "writing fails", whole, {2, 30}, F::write),
        program("sync", "fdatasync fails", whole, {2, 30}, F::sync),
        program("rename-file", "renaming fails", whole, {2, 30}, F::rename),
        program("memory", "an allocation of 1 MB or more fails", whole, {2, 30}, F::memory,
                NotSanitized),
        program("thread", "a thread can't be made", whole, {1, 20}, F::thread),
        program("descriptor", "a socket can't be made", whole, {1, 20}, F::descriptor),
    };
}

std::vector<Fault> programFaults()
{
    namespace F = ProgramFaults;
    const char* const whole = "the report is whole, or a message says why there is none";
    return {
        program("slow-disk", "fdatasync takes up to 2 s", whole, {1, 20}, F::slowDisk),
        program("full-disk", "no space from some write on", whole, {1, 30}, F::fullDisk),
        program("full-tmp", "no space in TMPDIR", "the report is whole", {1, 10},
                F::fullTemporaryFolder),
        program("pipe", "a named pipe in the place of a file", "a message", {2, 20}, F::pipes),
        program("signal", "a signal in the first second", whole, {2, 40}, F::earlySignal),
        program("kill-writing", "kill -9 while files are written", "the former or the new file",
                {3, 250}, F::killWhileWriting),
        program("clock", "the clock jumps, up to a year", "the report is whole", {1, 20},
                F::clockJump),
        program("suspend", "stopped for 5 s", "the check goes on", {1, 10}, F::suspend),
        program("shared-store", "four programs on one history", "every run is in it once", {2, 20},
                F::sharedStore),
    };
}

std::vector<Fault> peerFaults()
{
    namespace F = PeerFaults;
    const char* const whole = "the report is whole";
    return {
        program("stun", "a STUN server that answers with noise and floods", whole, {1, 10},
                F::stun),
        program("dns", "a name server that answers with noise and loops", "nothing stays behind",
                {2, 20}, F::dns),
        program("http", "a report server that breaks HTTP", whole, {1, 10}, F::http),
        program("tls", "a report server that breaks TLS", whole, {1, 10}, F::tls),
        program("silent-dns", "name servers that don't answer", whole, {1, 4}, F::silentDns),
        program("unload", "the library loaded and unloaded 100 times", "nothing stays behind",
                {1, 1}, F::unload, NotSanitized),
    };
}

std::vector<Fault> table()
{
    std::vector<Fault> result;
    for (const std::vector<Fault>& more :
         {scriptedFaults(), serverFaults(), failingCalls(), programFaults(), peerFaults()}) {
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
