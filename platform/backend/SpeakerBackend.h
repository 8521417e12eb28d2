// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

namespace Platform {

// One user of the playback devices. Threads as for CameraBackend. The list comes from the engine
// (Engine::speakers), because the façade asks for it without an object.
class SpeakerBackend
{
public:
    class Listener
    {
    public:
        virtual void speakerListChanged() = 0;
        virtual void currentSpeakerChanged(const QString& id) = 0;
        // Volume or mute, by another program, not by setVolume()
        virtual void speakerVolumeChanged(int percent) = 0;
        virtual void speakerWorkStateChanged(bool works) = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~SpeakerBackend() = default;

    virtual QString currentId() const = 0; // empty if there is none
    virtual QString currentName() const = 0;
    virtual void setCurrent(const QString& id) = 0;
    virtual DeviceState state() const = 0;
    virtual DeviceState stateOf(const QString& id) const = 0; // Absent if it isn't plugged in
    virtual int volume() const = 0;                    // percent, 0 to 100; 0 while it is muted
    virtual int volumeOf(const QString& id) const = 0; // of any device in the list
    virtual void setVolume(int percent) = 0;           // also unmutes
};

} // namespace Platform
