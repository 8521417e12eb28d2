// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"

class CheckRun;

// What sound servers, cameras and their devices do to the dialog, on real servers (DeviceRig).
namespace ServerFaults {

void kill(CheckRun& run, Step step);      // and start again
void freeze(CheckRun& run, Step step);    // and go on
void startLate(CheckRun& run, Step step); // away for seconds
void replugSound(CheckRun& run, Step step);
void switchDefault(CheckRun& run, Step step);
void plugStorm(CheckRun& run, Step step);
void killCamera(CheckRun& run, Step step);
void freezeCamera(CheckRun& run, Step step);
void stallCamera(CheckRun& run, Step step);
void renameCamera(CheckRun& run, Step step);

} // namespace ServerFaults
