// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

// The whole program: reads the command line, creates the application object that the command needs,
// and runs the command.
namespace Program {

ExitCode run(int argc, char* argv[]);

} // namespace Program
