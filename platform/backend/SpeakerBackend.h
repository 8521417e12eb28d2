// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

namespace Platform {

// One session with the speakers. The rules for threads are those of CameraBackend. The list is a
// function of the engine (Engine::speakers), because it is also needed without a session.
class SpeakerBackend
{
public:
    class Listener
    {
    public:
        virtual void speakerListChanged() = 0;
        virtual void currentSpeakerChanged(const QString& id) = 0;
        virtual void speakerVolumeChanged(int percent) = 0; // by somebody else, not by setVolume()
        virtual void speakerWorkStateChanged(bool works) = 0;

    protected:
        ~Listener() = default;
    };

    virtual ~SpeakerBackend() = default;

    virtual QString currentId() const = 0; // empty if there is none
    virtual QString currentName() const = 0;
    virtual void setCurrent(const QString& id) = 0;
    virtual DeviceState state() const = 0;
    virtual int volume() const = 0; // percent, 0 to 100
    virtual void setVolume(int percent) = 0;
};

} // namespace Platform
