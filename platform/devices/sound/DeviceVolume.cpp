// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DeviceVolume.h"

#include <algorithm>
#include <cmath>

namespace Platform {

DeviceVolume::DeviceVolume(int maximum) : m_maximum(maximum)
{
}

void DeviceVolume::reset(const VolumeState& state)
{
    m_percent = limited(state.percent);
    m_isMuted = state.isMuted;
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

bool DeviceVolume::take(const VolumeState& state, quint64 settledOrder)
{
    if (settledOrder < m_awaitedOrder) {
        return false;
    }
    const int before = percent();
    m_percent = limited(state.percent);
    m_isMuted = state.isMuted;
    return percent() != before;
}

void DeviceVolume::addTo(QJsonObject& figures) const
{
    m_found.addTo(figures, m_percent, m_isMuted);
}

int DeviceVolume::limited(double percent) const
{
    return std::clamp(static_cast<int>(std::lround(percent)), 0, m_maximum);
}

} // namespace Platform
