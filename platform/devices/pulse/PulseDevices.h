// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"

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

    double volumePercent() const;
};

// The devices of one kind, without those that are none: the server's dummy output, and the monitors
// of playback devices.
struct PulseSide
{
    std::vector<PulseDevice> devices;
    QString defaultId;
    // Orders to set a volume, up to this one, have been carried out in what is reported here.
    quint64 settledOrder = 0;

    const PulseDevice* find(const QString& id) const;
    // What is used where the user chose nothing: the default, otherwise the first.
    QString preferredId() const;
    QString defaultName() const; // null where there is none
    DeviceList list() const;
};

// What the sound server has, at one moment.
struct PulseDevices
{
    bool isConnected = false;
    PulseSide speakers;
    PulseSide microphones;

    PulseSide& side(PulseKind kind);
    const PulseSide& side(PulseKind kind) const;
};

bool operator==(const PulseDevice& a, const PulseDevice& b);
bool operator==(const PulseSide& a, const PulseSide& b);
bool operator==(const PulseDevices& a, const PulseDevices& b);

} // namespace Platform
