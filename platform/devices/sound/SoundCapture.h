// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/devices/sound/CaptureMeter.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace Platform {

class MicrophoneAnalysis;

// The recording of one microphone at a time, and its playback on a speaker: passes the sound to a
// CaptureMeter and to listening to oneself. The GUI thread creates it, calls it and destroys it;
// no call waits. What is ordered happens on the sound thread, in order. The destructor closes.
class SoundCapture
{
public:
    // Samples a second that a CaptureMeter gets, and so the rate for the MicrophoneAnalysis.
    static constexpr unsigned Rate = 48000;

    // What happens after open(), called on the sound thread until close() is carried out there.
    // Who posts it to the GUI thread drops what was on its way when it closed.
    struct Events
    {
        CaptureMeter::Events metered;
        // The stream broke, or couldn't be opened: Failed, or Denied or Busy if the system
        // tells. Nothing else comes until open() is called again.
        std::function<void(DeviceState reason)> failed;
        // Each piece of sound, mixed to one channel; may be null.
        std::function<void(const std::vector<float>& mono, CaptureMeter::Clock::time_point now)>
            recorded;
    };

    virtual ~SoundCapture() = default;

    // Closes what was open. Records this microphone and no other; without it, failed comes.
    virtual void open(const QString& microphoneId, std::shared_ptr<MicrophoneAnalysis> analysis,
                      Events events) = 0;
    // While a microphone is open, it is heard on this speaker, which is opened anew if it breaks.
    // An empty id ends it. Valid until the next call, whether a microphone is open or not.
    virtual void listenOn(const QString& speakerId) = 0;
    // closed runs on the sound thread, after the last event. It never runs if that thread hangs.
    virtual void close(std::function<void()> closed = {}) = 0;
};

} // namespace Platform
