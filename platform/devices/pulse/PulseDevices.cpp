// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseDevices.h"

#include <QCoreApplication>

namespace Platform {

VolumeState PulseDevice::volumeState() const
{
    return {100.0 * pa_cvolume_max(&volume) / PA_VOLUME_NORM, isMuted};
}

const PulseDevice* PulseSide::find(const QString& id) const
{
    return findDevice(devices, id);
}

DeviceState PulseSide::stateOf(const QString& id) const
{
    return find(id) ? DeviceState::Ready : DeviceState::Absent;
}

VolumeState PulseSide::volumeOf(const QString& id) const
{
    const PulseDevice* device = find(id);
    return device ? device->volumeState() : VolumeState();
}

QString PulseSide::preferredId() const
{
    if (find(defaultId)) {
        return defaultId;
    }
    return devices.empty() ? QString() : devices.front().id;
}

QString PulseSide::defaultName() const
{
    const PulseDevice* device = find(defaultId);
    return device ? device->name : QString();
}

DeviceList PulseSide::list() const
{
    DeviceList result;
    for (const PulseDevice& device : devices) {
        result.push_back(device);
        if (device.isTelephone) {
            result.back().name = qtTrId("ID_Engine_TelephoneQuality").arg(device.name);
        }
    }
    return withDistinctNames(std::move(result));
}

PulseSide& PulseDevices::side(PulseKind kind)
{
    return kind == PulseKind::Speaker ? speakers : microphones;
}

const PulseSide& PulseDevices::side(PulseKind kind) const
{
    return kind == PulseKind::Speaker ? speakers : microphones;
}

QString toString(SoundServerState server, DeviceState device)
{
    const QString trouble = toString(server);
    return trouble.isEmpty() ? toString(device) : trouble;
}

bool operator==(const PulseDevice& a, const PulseDevice& b)
{
    return a.id == b.id && a.name == b.name && pa_cvolume_equal(&a.volume, &b.volume) != 0 &&
           a.isMuted == b.isMuted && a.isAdjustable == b.isAdjustable &&
           a.isTelephone == b.isTelephone;
}

bool operator==(const PulseSide& a, const PulseSide& b)
{
    return a.devices == b.devices && a.defaultId == b.defaultId && a.settledOrder == b.settledOrder;
}

bool operator==(const PulseDevices& a, const PulseDevices& b)
{
    return a.isConnected == b.isConnected && a.server == b.server && a.speakers == b.speakers &&
           a.microphones == b.microphones;
}

} // namespace Platform
