// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/backend/SoundServerState.h"
#include "platform/devices/sound/DeviceVolume.h"

#include <QString>
#include <pulse/volume.h>
#include <vector>

namespace Platform {

enum class PulseKind { Speaker, Microphone };

// Its id is the server's name of it, which outlives a replugging.
struct PulseDevice : DeviceInfo
{
    pa_cvolume volume{};
    bool isMuted = false;
    bool isAdjustable = false;
    bool isTelephone = false; // a Bluetooth headset in the mode that sounds like a telephone

    VolumeState volumeState() const;
};

// The devices of one kind. The server's dummy output and the monitors of speakers don't count.
struct PulseSide
{
    std::vector<PulseDevice> devices;
    QString defaultId;
    // The volumes here contain all orders to set a volume up to this number.
    quint64 settledOrder = 0;

    const PulseDevice* find(const QString& id) const;
    DeviceState stateOf(const QString& id) const;  // Absent, or Ready to be opened
    VolumeState volumeOf(const QString& id) const; // 0 if it is absent
    // For users who chose nothing: the default device, or the first if there is no default.
    QString preferredId() const;
    QString defaultName() const; // null without a default
    DeviceList list() const;     // for display
};

// What the sound server has, at one moment.
struct PulseDevices
{
    bool isConnected = false;
    SoundServerState server = SoundServerState::Starting;
    PulseSide speakers;
    PulseSide microphones;

    PulseSide& side(PulseKind kind);
    const PulseSide& side(PulseKind kind) const;
};

// The state of a device as reports call it. Trouble of its server says more than its own state.
QString toString(SoundServerState server, DeviceState device);

bool operator==(const PulseDevice& a, const PulseDevice& b);
bool operator==(const PulseSide& a, const PulseSide& b);
bool operator==(const PulseDevices& a, const PulseDevices& b);

} // namespace Platform
