// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundDevices.h"

#include <QCoreApplication>

namespace Platform {

const SoundDevice* SoundSide::find(const QString& id) const
{
    return findDevice(devices, id);
}

DeviceState SoundSide::stateOf(const QString& id) const
{
    return find(id) ? DeviceState::Ready : DeviceState::Absent;
}

VolumeState SoundSide::volumeOf(const QString& id) const
{
    const SoundDevice* device = find(id);
    return device ? device->volume : VolumeState();
}

QString SoundSide::preferredId() const
{
    if (find(defaultId)) {
        return defaultId;
    }
    return devices.empty() ? QString() : devices.front().id;
}

QString SoundSide::defaultName() const
{
    const SoundDevice* device = find(defaultId);
    return device ? device->name : QString();
}

DeviceList SoundSide::list() const
{
    DeviceList result;
    for (const SoundDevice& device : devices) {
        result.push_back(device);
        if (device.isTelephone) {
            result.back().name = qtTrId("ID_Engine_TelephoneQuality").arg(device.name);
        }
    }
    return withDistinctNames(std::move(result));
}

SoundSide& SoundDevices::side(SoundKind kind)
{
    return kind == SoundKind::Speaker ? speakers : microphones;
}

const SoundSide& SoundDevices::side(SoundKind kind) const
{
    return kind == SoundKind::Speaker ? speakers : microphones;
}

QString toString(SoundServerState server, DeviceState device)
{
    const QString trouble = toString(server);
    return trouble.isEmpty() ? toString(device) : trouble;
}

bool operator==(const SoundDevice& a, const SoundDevice& b)
{
    return a.id == b.id && a.name == b.name && a.volume == b.volume &&
           a.isAdjustable == b.isAdjustable && a.isTelephone == b.isTelephone;
}

bool operator==(const SoundSide& a, const SoundSide& b)
{
    return a.devices == b.devices && a.defaultId == b.defaultId && a.settledOrder == b.settledOrder;
}

bool operator==(const SoundDevices& a, const SoundDevices& b)
{
    return a.isConnected == b.isConnected && a.server == b.server && a.speakers == b.speakers &&
           a.microphones == b.microphones;
}

} // namespace Platform
