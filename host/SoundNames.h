// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The sounds of the speaker check, as its answers name them.
namespace SoundNames {

// The id of the text for a file such as "Piano"; null where it is none of them.
const char* textId(const QString& baseName);

} // namespace SoundNames
