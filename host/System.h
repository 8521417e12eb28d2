// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <cstdio>

// What the program asks of the operating system by itself, once for each.
namespace System {

// Before anything else in main().
void prepareProcess();

QStringList arguments(int argc, char* argv[]); // the program's name first
bool isTerminal(std::FILE* file);
void write(std::FILE* file, const QString& text); // UTF-8 where it isn't a terminal

} // namespace System
