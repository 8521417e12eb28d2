// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

struct Options;

// The commands that look at an engine without opening the check. GUI thread only; each returns
// when it is done or a signal has ended it.
namespace EngineCommands {

ExitCode listDevices(const Options& options);
ExitCode watchNetwork(const Options& options); // 0 where the last figures pass the check
ExitCode serve(const Options& options);

} // namespace EngineCommands
