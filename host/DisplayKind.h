// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Which display the program can open; one source file for each system.
namespace DisplayKind {

QStringList displays(); // as the environment names them; empty if there is none

// Lets Qt take another kind of display if the first one fails, unless the environment asks for one
// kind. False if no kind is possible.
bool choose();

} // namespace DisplayKind
