// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What this process holds: windows, threads, file descriptors and child processes.
struct Holdings
{
    int windows = 0;
    int threads = 0;
    int descriptors = 0;
    int children = 0;

    static Holdings now();
    // Waits until nothing is held beyond that. Empty, or what is still there.
    static QString problemAgainst(const Holdings& before);
};
