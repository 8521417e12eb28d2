// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {

class SoundBuffer;

// Reads an MP3 file into a buffer, on a thread of the caller's. Whatever is no such file (a folder,
// a pipe, something else, more than MaxFileBytes) ends it with an empty buffer; a file that breaks
// off ends it with what there was. A sound is cut after MaxSeconds.
namespace Mp3Decoder {

constexpr long long MaxFileBytes = 16LL * 1024 * 1024;
constexpr unsigned MaxSeconds = 60;

void decode(const QString& path, float volume, SoundBuffer& buffer);

} // namespace Mp3Decoder
} // namespace Platform
