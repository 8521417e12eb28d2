// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedDevices.h"

#include <algorithm>

namespace Platform {

ScriptedDevices::ScriptedDevices() = default;

ScriptedDevices::~ScriptedDevices() = default;

void ScriptedDevices::plug(const DeviceInfo& device, DeviceState state)
{
    const auto present = find(device.id);
    if (present == m_devices.end()) {
        m_devices.push_back({device, state});
    } else {
        *present = {device, state};
    }
    if (!m_isChoiceMade) {
        m_isChoiceMade = true;
        m_currentId = device.id;
    }
    announceList();
}

void ScriptedDevices::unplug(const QString& id)
{
    const auto device = find(id);
    if (device != m_devices.end()) {
        m_devices.erase(device);
        announceList();
    }
}

void ScriptedDevices::rename(const QString& id, const QString& name)
{
    const auto device = find(id);
    if (device == m_devices.end()) {
        return;
    }
    device->info.name = name;
    announceList();
    if (id == m_currentId) {
        Q_EMIT currentInfoChanged();
    }
}

void ScriptedDevices::setState(const QString& id, DeviceState state)
{
    const auto device = find(id);
    if (device == m_devices.end() || device->state == state) {
        return;
    }
    device->state = state;
    if (id == m_currentId) {
        Q_EMIT currentStateChanged();
    }
}

void ScriptedDevices::choose(const QString& id)
{
    m_isChoiceMade = true;
    if (id != m_currentId) {
        m_currentId = id;
        m_currentName.clear();
        refreshCurrentName();
        Q_EMIT currentChanged(id);
    }
}

DeviceList ScriptedDevices::devices() const
{
    DeviceList result;
    for (const Device& device : m_devices) {
        result.push_back(device.info);
    }
    return withDistinctNames(result);
}

QString ScriptedDevices::defaultName() const
{
    const DeviceList list = devices();
    return list.empty() ? QString() : list.front().name;
}

DeviceState ScriptedDevices::currentState() const
{
    if (m_currentId.isEmpty()) {
        return m_isChoiceMade ? DeviceState::Off : DeviceState::Absent;
    }
    return stateOf(m_currentId);
}

DeviceState ScriptedDevices::stateOf(const QString& id) const
{
    const auto device = find(id);
    return device == m_devices.end() ? DeviceState::Absent : device->state;
}

std::vector<ScriptedDevices::Device>::iterator ScriptedDevices::find(const QString& id)
{
    return std::find_if(m_devices.begin(), m_devices.end(),
                        [&id](const Device& device) { return device.info.id == id; });
}

std::vector<ScriptedDevices::Device>::const_iterator ScriptedDevices::find(const QString& id) const
{
    return std::find_if(m_devices.begin(), m_devices.end(),
                        [&id](const Device& device) { return device.info.id == id; });
}

// The name of an unplugged device is the last one it had.
void ScriptedDevices::refreshCurrentName()
{
    for (const DeviceInfo& device : devices()) {
        if (device.id == m_currentId) {
            m_currentName = device.name;
        }
    }
}

void ScriptedDevices::announceList()
{
    refreshCurrentName();
    Q_EMIT listChanged();
    Q_EMIT currentChanged(m_currentId);
}

} // namespace Platform
