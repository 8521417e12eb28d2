// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

// The one end of the program: deliver reports that are under way, write the files that wait, leave.
// All steps share one budget. A thread that hangs in a disk or a name server is never waited for.
// GUI thread only.
namespace ProgramEnd {

constexpr int BudgetMs = 5000;
constexpr int DeliveryMs = 2000; // of the budget, for reports on their way to a server

void begin();      // starts the clock; the first call counts
void cancel();     // the program goes on: the whole budget again
int remainingMs(); // the whole budget before begin(), and after the process was stopped

// Writes what waits, says what was not written, and ends the process. That turns success into
// ExitCode::CannotWrite. No destructor runs, not even the application's: Qt's waits for name
// servers.
[[noreturn]] void leave(ExitCode code);

} // namespace ProgramEnd
