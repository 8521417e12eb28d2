// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

struct Options;

// The command "devices": lists the devices without opening any. GUI thread only.
namespace DevicesCommand {

ExitCode run(const Options& options);

} // namespace DevicesCommand
