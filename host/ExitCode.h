// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// The exit codes of the program.
enum class ExitCode : int {
    AllPassed = 0,
    SomeFailed = 1,
    LeftEarly = 2,
    PutOut = 3,       // the engine ended the session
    TourProblems = 4, // the tour found unreadable texts, or didn't reach its end
    WrongUsage = 64,  // an unknown option or a bad value
    BadInput = 65,    // a named file can't be used
    Unavailable = 69, // a display, port or server is missing
    CannotWrite = 73, // a named file or folder can't be written
};
