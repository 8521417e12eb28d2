// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

struct Options;

// The command "serve": answers STUN requests until a signal ends it. GUI thread only.
namespace ServeCommand {

ExitCode run(const Options& options);

} // namespace ServeCommand
