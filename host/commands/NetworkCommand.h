// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

struct Options;

// The command "network": prints what a probe measures, until it is done or a signal ends it. Exit
// code 0 if the last figures pass the check. GUI thread only.
namespace NetworkCommand {

ExitCode run(const Options& options);

} // namespace NetworkCommand
