// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// How the program ends.
enum class ExitCode : int {
    AllPassed = 0,
    SomeFailed = 1,
    LeftEarly = 2,
    PutOut = 3,       // the engine ended the session
    TourProblems = 4, // the tour found texts that can't be read, or didn't get through
    WrongUsage = 64,  // an unknown option or a bad value
    BadInput = 65,    // a file that was named can't be used
    Unavailable = 69, // a display, port or server that is needed isn't there
    CannotWrite = 73, // a file or folder that was named can't be written
};
