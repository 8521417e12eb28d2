// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

#include <QString>
#include <chrono>
#include <functional>
#include <optional>

namespace Platform {

// Plays a sound buffer on one speaker, and on no other. The GUI thread creates it and destroys it;
// no call waits. What is ordered happens on the sound thread, in order. The destructor stops.
class SoundPlayback
{
public:
    // Called once on the sound thread, but not after stop() was carried out there: without a value
    // at the end of the sound, else with the reason: Failed if the device or the server broke or
    // there is no sound to play, or Denied or Busy if the system tells.
    using Finished = std::function<void(std::optional<DeviceState> failure)>;

    virtual ~SoundPlayback() = default;

    // Begins as soon as there is sound. If it is playing already, it goes on there, at the place
    // up to which it was heard.
    virtual void playOn(const QString& speakerId) = 0;
    virtual void soundAdvanced() = 0; // from any thread: the buffer got samples, or its end
    virtual void stop() = 0;
    // When the first sample was handed to the server; long ago if none was. From any thread.
    virtual std::chrono::steady_clock::time_point begin() const = 0;
};

} // namespace Platform
