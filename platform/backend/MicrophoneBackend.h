// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

namespace Platform {

// One user of the microphones: list, choice, level, volume and listening to oneself. Threads as for
// CameraBackend.
class MicrophoneBackend
{
public:
    class Listener
    {
    public:
        virtual void microphoneListChanged() = 0;
        virtual void currentMicrophoneChanged(const QString& id) = 0;
        virtual void levelMeasured(double level) = 0; // 0 to 1, 30 a second or more; 0 only once
        virtual void microphoneVolumeChanged(int percent) = 0; // by setVolume()
        virtual void microphoneInfoChanged() = 0;              // name, mute or adjustability
        virtual void microphoneWorkStateChanged(const QString& id, bool works) = 0;
        virtual void systemVolumeChanged(float percent) = 0; // by another program

    protected:
        ~Listener() = default;
    };

    virtual ~MicrophoneBackend() = default;

    virtual DeviceList devices() const = 0;
    virtual QString currentId() const = 0; // as in CameraBackend
    virtual QString currentName() const = 0;
    virtual void setCurrent(const QString& id) = 0; // an empty id chooses none
    virtual DeviceState state() const = 0;
    virtual DeviceState stateOf(const QString& id) const = 0; // Absent if it isn't plugged in
    virtual bool hasHeardSound() const = 0; // the current device delivered sound while open

    virtual void open() = 0;
    virtual void close() = 0; // stops all streams
    virtual void setListening(bool on) = 0;

    virtual bool isVolumeAdjustable() const = 0;
    virtual int volume() const = 0;                    // percent, 0 to 150; 0 while it is muted
    virtual int volumeOf(const QString& id) const = 0; // of any device in the list
    virtual void setVolume(int percent) = 0;           // also unmutes
};

} // namespace Platform
