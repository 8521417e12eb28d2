// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/backend/SoundServerState.h"
#include "platform/devices/sound/DeviceVolume.h"

#include <QString>
#include <vector>

namespace Platform {

enum class SoundKind { Speaker, Microphone };

// Its id outlives a replugging.
struct SoundDevice : DeviceInfo
{
    VolumeState volume;
    bool isAdjustable = false;
    bool isTelephone = false; // a Bluetooth headset in the mode that sounds like a telephone
};

// The devices of one kind. Stand-ins for a missing device and the monitors of speakers don't count.
struct SoundSide
{
    std::vector<SoundDevice> devices;
    QString defaultId;
    // The volumes here contain all orders to set a volume up to this number.
    quint64 settledOrder = 0;

    const SoundDevice* find(const QString& id) const;
    DeviceState stateOf(const QString& id) const;  // Absent, or Ready to be opened
    VolumeState volumeOf(const QString& id) const; // 0 if it is absent
    // For users who chose nothing: the default device, or the first if there is no default.
    QString preferredId() const;
    QString defaultName() const; // null without a default
    DeviceList list() const;     // for display
};

// What the sound server has, at one moment.
struct SoundDevices
{
    bool isConnected = false;
    SoundServerState server = SoundServerState::Starting;
    SoundSide speakers;
    SoundSide microphones;

    SoundSide& side(SoundKind kind);
    const SoundSide& side(SoundKind kind) const;
};

// The state of a device as reports call it. Trouble of its server says more than its own state.
QString toString(SoundServerState server, DeviceState device);

bool operator==(const SoundDevice& a, const SoundDevice& b);
bool operator==(const SoundSide& a, const SoundSide& b);
bool operator==(const SoundDevices& a, const SoundDevices& b);

} // namespace Platform
