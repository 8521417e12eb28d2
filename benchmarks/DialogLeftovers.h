// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/DialogStage.h"

namespace TestSupport {
class CameraProcess;
}

// Counts what many openings of the dialog leave behind: heap, descriptors, threads and streams.
// Prints a table; false if anything grows. Waits calmMs before it counts.
bool measureLeftovers(DialogStage::Application& application, TestSupport::SoundServer& server,
                      TestSupport::CameraProcess& camera, int openings, int calmMs);
