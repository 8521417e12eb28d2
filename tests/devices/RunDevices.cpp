// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/RunDevices.h"

namespace TestSupport {

void RunDevices::unplugSound()
{
    for (const char* module : {"module-remap-source", "module-null-sink"}) {
        m_sound.unplug(module);
    }
}

bool RunDevices::listen()
{
    m_ear = std::make_unique<SoundRecording>(QStringLiteral("speaker_a.monitor"));
    return m_ear->waitForStart();
}

std::vector<float> RunDevices::say(const QString& text)
{
    const std::vector<float> words = speech(text);
    m_voice = std::make_unique<SoundSource>(QStringLiteral("voice"), words);
    return words;
}

} // namespace TestSupport
