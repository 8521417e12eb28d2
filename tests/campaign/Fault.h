// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"

#include <vector>

class CheckRun;
class Injection;

// One kind of fault of the campaign: what breaks, at which steps, and how many times. It has one
// row in the table of docs/faults.md.
struct Fault
{
    enum class Needs {
        Scripted, // the dialog in this process, on scripted devices
        Servers,  // the same on real servers of its own (DeviceRig)
        Program,  // the program as it was built, in processes of its own
    };
    enum class Where {
        EachStep, // every check has it at each of the steps
        OneStep,  // each check has it at one of the steps, in turn
        Anywhere, // it doesn't depend on a step
    };
    using AtStep = void (*)(CheckRun& run, Step step); // called when the dialog shows the step
    using Whole = void (*)(Injection& injection);      // runs its checks itself

    const char* name; // for --only
    const char* what; // text for the table: what breaks
    const char* now;  // text for the table: what the program does then
    Needs needs;
    Where where;
    std::vector<Step> steps;
    int quick; // how many checks, or calls of whole, with --quick
    int full;  // the same with --full
    AtStep atStep;
    Whole whole;             // instead of atStep
    bool isSanitized = true; // also injected in builds with sanitizers
};
