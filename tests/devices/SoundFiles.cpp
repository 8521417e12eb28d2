// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/SoundFiles.h"

#include "platform/devices/sound/Mp3Decoder.h"
#include "platform/devices/sound/SoundBuffer.h"
#include "tests/support/Signals.h"

#include <QDir>
#include <cmath>

using namespace Platform;

namespace TestSupport {

QStringList soundNames()
{
    return QDir(QStringLiteral(ENVCHECK_SOURCE_DIR "/share/sounds"))
        .entryList({QStringLiteral("*.mp3")});
}

QString soundPath(const QString& name)
{
    return QStringLiteral(ENVCHECK_SOURCE_DIR "/share/sounds/") + name;
}

std::vector<float> readSound(const QString& path)
{
    SoundBuffer buffer;
    Mp3Decoder::decode(path, 1.0F, buffer);
    const SoundBuffer::Format format = buffer.format();
    std::vector<float> all(buffer.size());
    buffer.read(0, all.data(), all.size());
    const std::size_t frames = format.channels == 0 ? 0 : all.size() / format.channels;
    const auto mono = [&](std::size_t frame) {
        double sum = 0.0;
        for (unsigned channel = 0; channel < format.channels; ++channel) {
            sum += static_cast<double>(all[frame * format.channels + channel]);
        }
        return sum / format.channels;
    };
    std::vector<float> result;
    const double step = static_cast<double>(format.rate) / SoundRate;
    for (double at = 0.0; at + 1.0 < static_cast<double>(frames); at += step) {
        const auto frame = static_cast<std::size_t>(at);
        const double part = at - std::floor(at);
        result.push_back(static_cast<float>((1.0 - part) * mono(frame) + part * mono(frame + 1)));
    }
    return result;
}

std::vector<double> compareWithSounds(const std::vector<float>& recording)
{
    static const std::vector<std::vector<float>> sounds = [] {
        std::vector<std::vector<float>> all;
        for (const QString& name : soundNames()) {
            all.push_back(readSound(soundPath(name)));
        }
        return all;
    }();
    std::vector<double> result;
    for (const std::vector<float>& sound : sounds) {
        result.push_back(correlation(recording, sound));
    }
    return result;
}

} // namespace TestSupport
