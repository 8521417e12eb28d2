// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"

#include <vector>

class CheckRun;
class Injection;

// A row of the campaign: what is broken, where, and how often.
struct Fault
{
    enum class Needs {
        Scripted, // the dialog on scripted devices
        Servers,  // the dialog on a sound server and cameras of its own (DeviceRig)
        Program,  // the program itself, as it was built
    };
    enum class Where {
        EachStep, // of those named, in every check
        OneStep,  // of those named, in turn
        Anywhere, // no matter
    };
    using AtStep = void (*)(CheckRun& run, Step step); // of a check in this process
    using Whole = void (*)(Injection& injection);      // everything by itself

    const char* name;
    const char* what; // is broken
    const char* now;  // what happens then, in the table
    Needs needs;
    Where where; // atStep is called
    std::vector<Step> steps;
    int quick; // repetitions: checks of the dialog, or calls of whole
    int full;
    AtStep atStep;
    Whole whole;             // instead of atStep
    bool isSanitized = true; // also injected in builds with sanitizers
};
