// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

// The whole program: reads the command line, creates the application object that the command needs,
// and runs the command. Returns only if none was run; otherwise the process ends here (ProgramEnd).
namespace Program {

ExitCode run(int argc, char* argv[]);

} // namespace Program
