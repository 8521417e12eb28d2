// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundPlayback.h"

#include <memory>

namespace Platform {

class SoundBuffer;
class WasapiPlaying;

// Plays by Windows' audio functions, on a thread of its own, which is left behind if it hangs.
class WasapiPlayback final : public SoundPlayback
{
public:
    WasapiPlayback(std::shared_ptr<SoundBuffer> sound, const Finished& finished);
    ~WasapiPlayback() override;

    void playOn(const QString& speakerId) override;
    void soundAdvanced() override;
    void stop() override;
    std::chrono::steady_clock::time_point begin() const override;

private:
    std::shared_ptr<WasapiPlaying> m_playing;
};

} // namespace Platform
