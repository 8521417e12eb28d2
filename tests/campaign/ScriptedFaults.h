// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"

#include <QByteArray>

class CheckRun;

// What scripted devices, figures and sessions do to the dialog. At the other steps, a kind of
// device is chosen at random.
namespace ScriptedFaults {

QByteArray scenario(); // of the checks: two working devices of each kind

void unplug(CheckRun& run, Step step);
void freeze(CheckRun& run, Step step);
void replug(CheckRun& run, Step step);
void rename(CheckRun& run, Step step);
void switchDevice(CheckRun& run, Step step);
void startLate(CheckRun& run, Step step);
void stormOfLists(CheckRun& run, Step step);
void manyDevices(CheckRun& run, Step step);
void absurdFigures(CheckRun& run, Step step);
void foreignVolumes(CheckRun& run, Step step);
void cameraServer(CheckRun& run, Step step);
void breakdown(CheckRun& run, Step step); // ends the session
void kickOut(CheckRun& run, Step step);

} // namespace ScriptedFaults
