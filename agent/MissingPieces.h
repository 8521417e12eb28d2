// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// What the client has to bring along: texts, sounds and pictures. Without them the dialog shows
// ids, stays silent and has empty places.
namespace MissingPieces {

// What isn't there, each in words for the client's developer. GUI thread only.
QStringList find();

// Writes them and the remedy to the log, as one warning of the category "envcheck", if any is
// missing.
void report();

} // namespace MissingPieces
