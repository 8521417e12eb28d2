// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/FoundVolume.h"

namespace Platform {

// What the sound system says about the volume of a device.
struct VolumeState
{
    double percent = 0.0;
    bool isMuted = false;

    friend bool operator==(const VolumeState& a, const VolumeState& b)
    {
        return a.percent == b.percent && a.isMuted == b.isMuted;
    }
};

// The volume of the current device as the user sees it, and as it was found. Sound systems report
// each change late, also those that the user made here. So reports are ignored until the last order
// to set the volume has been carried out.
class DeviceVolume
{
public:
    explicit DeviceVolume(int maximum);

    int percent() const { return m_isMuted ? 0 : m_percent; } // as loud as it is: 0 while muted
    int percentOf(const VolumeState& state) const
    {
        return state.isMuted ? 0 : limited(state.percent);
    }
    void reset(const VolumeState& state); // another device became the current one
    int set(int percent);                 // by the user; returns the value within the limits
    void await(quint64 order);            // the order that carries out set()
    // Takes a report. True if somebody else changed the volume or the mute.
    bool take(const VolumeState& state, quint64 settledOrder);

    // For the report: volume and mute as they were found and as they are left.
    void addTo(QJsonObject& figures) const;

private:
    int limited(double percent) const;

    int m_maximum;
    int m_percent = 0;
    bool m_isMuted = false;
    quint64 m_awaitedOrder = 0;
    FoundVolume m_found;
};

} // namespace Platform
