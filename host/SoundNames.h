// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The names of the sounds of the speaker check.
namespace SoundNames {

// The text id of a file such as "Piano"; null if it is no such file.
const char* textId(const QString& baseName);

} // namespace SoundNames
