// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundPlayback.h"

#include <memory>

namespace Platform {

class PulseConnection;
class PulsePlayback;
class SoundBuffer;

// What the GUI thread has of a PulsePlayback. The connection outlives it.
class PulsePlaybackHandle final : public SoundPlayback
{
public:
    PulsePlaybackHandle(PulseConnection& connection, std::shared_ptr<SoundBuffer> sound,
                        Finished finished);
    ~PulsePlaybackHandle() override;

    void playOn(const QString& speakerId) override;
    void soundAdvanced() override;
    void stop() override;
    std::chrono::steady_clock::time_point begin() const override;

private:
    PulseConnection& m_connection;
    std::shared_ptr<PulsePlayback> m_playback;
};

} // namespace Platform
