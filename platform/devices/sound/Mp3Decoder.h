// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

class SoundBuffer;

// Decodes an MP3 file into a buffer, on the caller's thread. If the path is no MP3 file (a folder,
// a pipe, another format, more than MaxFileBytes), the buffer stays empty. A broken file gives the
// sound before the damage. Longer sounds end after MaxSeconds.
namespace Mp3Decoder {

constexpr long long MaxFileBytes = 16LL * 1024 * 1024;
constexpr unsigned MaxSeconds = 60;

void decode(const QString& path, float volume, SoundBuffer& buffer);

} // namespace Mp3Decoder
} // namespace Platform
