// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/Mp3Decoder.h"

#include "platform/backend/Log.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "platform/devices/sound/SoundFile.h"

#include <memory>
#include <mpg123.h>
#include <vector>

namespace Platform {

namespace {

// The first piece is short, so that playback starts soon. Later ones are long, because each wakes
// up the sound thread.
constexpr std::size_t FirstPieceSamples = 2304;
constexpr std::size_t PieceSamples = 32768;

struct DecoderCloser
{
    void operator()(mpg123_handle* handle) const { mpg123_delete(handle); }
};

// Returns an error, or an empty text if it read everything.
QString readSound(int descriptor, float volume, SoundBuffer& buffer)
{
    const std::unique_ptr<mpg123_handle, DecoderCloser> decoder(mpg123_new(nullptr, nullptr));
    if (!decoder) {
        return QStringLiteral("there is no decoder");
    }
    mpg123_handle* handle = decoder.get();
    mpg123_param(handle, MPG123_ADD_FLAGS,
                 MPG123_QUIET | MPG123_FORCE_FLOAT | MPG123_SKIP_ID3V2 | MPG123_NO_RESYNC, 0.0);
    long rate = 0;
    int channels = 0;
    int encoding = 0;
    if (mpg123_open_fd(handle, descriptor) != MPG123_OK ||
        mpg123_getformat(handle, &rate, &channels, &encoding) != MPG123_OK || rate <= 0 ||
        channels <= 0 || encoding != MPG123_ENC_FLOAT_32) {
        return QStringLiteral("it is no MP3 sound");
    }
    // Keep this format even if a later frame of the file has another one.
    mpg123_format_none(handle);
    mpg123_format(handle, rate, channels, encoding);
    mpg123_volume(handle, static_cast<double>(volume));
    buffer.begin({static_cast<unsigned>(rate), static_cast<unsigned>(channels)});

    const std::size_t limit =
        std::size_t{Mp3Decoder::MaxSeconds} * static_cast<std::size_t>(rate * channels);
    std::vector<float> piece(PieceSamples);
    std::size_t wanted = FirstPieceSamples;
    int outcome = MPG123_OK;
    while (outcome == MPG123_OK && buffer.size() < limit && !buffer.isCancelled()) {
        std::size_t bytes = 0;
        outcome = mpg123_read(handle, piece.data(), wanted * sizeof(float), &bytes);
        if (bytes > 0) {
            buffer.append(piece.data(), bytes / sizeof(float));
        }
        wanted = PieceSamples;
    }
    return outcome == MPG123_OK || outcome == MPG123_DONE
               ? QString()
               : QString::fromLocal8Bit(mpg123_strerror(handle));
}

} // namespace

void Mp3Decoder::decode(const QString& path, float volume, SoundBuffer& buffer)
{
    const SoundFile file(path, MaxFileBytes);
    QString problem = file.refusal();
    if (problem.isEmpty()) {
        problem = readSound(file.descriptor(), volume, buffer);
    }
    if (!problem.isEmpty()) {
        qCInfo(Log::player) << "The sound" << path << "ends early:" << problem;
    }
    buffer.end();
}

} // namespace Platform
