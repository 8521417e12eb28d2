// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/DeviceVolume.h"

#include "platform/devices/pulse/PulseDevices.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Platform {

DeviceVolume::DeviceVolume(int maximum) : m_maximum(maximum)
{
}

void DeviceVolume::reset(const PulseDevice* device)
{
    m_percent = device ? percentOf(*device) : 0;
    m_isMuted = device && device->isMuted;
    m_awaitedOrder = 0;
    m_found.reset(m_percent, m_isMuted);
}

int DeviceVolume::set(int percent)
{
    m_percent = std::clamp(percent, 0, m_maximum);
    m_isMuted = false;
    m_found.noteMove();
    return m_percent;
}

void DeviceVolume::await(quint64 order)
{
    m_awaitedOrder = order;
}

bool DeviceVolume::take(const PulseDevice& device, quint64 settledOrder)
{
    if (settledOrder < m_awaitedOrder) {
        return false;
    }
    m_isMuted = device.isMuted;
    const int percent = percentOf(device);
    return std::exchange(m_percent, percent) != percent;
}

void DeviceVolume::addTo(QJsonObject& figures) const
{
    m_found.addTo(figures, m_percent, m_isMuted);
}

int DeviceVolume::percentOf(const PulseDevice& device) const
{
    return std::clamp(static_cast<int>(std::lround(device.volumePercent())), 0, m_maximum);
}

} // namespace Platform
