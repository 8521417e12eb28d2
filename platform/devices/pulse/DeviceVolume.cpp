// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/DeviceVolume.h"

#include <utility>

namespace Platform {

void DeviceVolume::reset(int percent)
{
    m_percent = percent;
    m_awaitedOrder = 0;
}

void DeviceVolume::set(int percent, quint64 order)
{
    m_percent = percent;
    m_awaitedOrder = order;
}

bool DeviceVolume::take(int percent, quint64 settledOrder)
{
    if (settledOrder < m_awaitedOrder) {
        return false;
    }
    return std::exchange(m_percent, percent) != percent;
}

} // namespace Platform
