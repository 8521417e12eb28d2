// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QStringList>

#include <cstdio>

// The calls of the program to the operating system; one source file for each system.
namespace System {

// Call this first in main().
void prepareProcess();

QStringList arguments(int argc, char* argv[]); // the program's name first
bool isTerminal(std::FILE* file);
void write(std::FILE* file, const QString& text); // UTF-8 unless it is a terminal

// Empty, or one line: the system lets the program open too few files.
QString problemOfLimits();

// Whether the permissions of a file let every user of the machine read or write it.
bool isOpenToOthers(const QString& path);

// Whether the process was stopped, and went on, since the last call.
bool hasBeenStopped();

// Ends the process at once, without destructors and without waiting for threads.
[[noreturn]] void leave(ExitCode code);

} // namespace System
