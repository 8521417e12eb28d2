// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What an empty list of microphones or speakers shows if the sound server is the cause.
namespace SoundServerText {

QString orElse(const char* noDeviceId); // the text of this id if the server runs
bool isOne(const QString& text);

} // namespace SoundServerText
