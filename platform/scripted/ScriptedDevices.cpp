// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedDevices.h"

namespace Platform {

ScriptedDevices::ScriptedDevices() = default;

ScriptedDevices::~ScriptedDevices() = default;

void ScriptedDevices::plug(const DeviceInfo& device, DeviceState state)
{
    if (Device* present = findDevice(m_devices, device.id)) {
        *present = {device, state};
    } else {
        m_devices.push_back({device, state});
    }
    if (!m_isChoiceMade) {
        m_isChoiceMade = true;
        m_currentId = device.id;
    }
    announceList();
}

void ScriptedDevices::unplug(const QString& id)
{
    if (const Device* device = findDevice(m_devices, id)) {
        m_devices.erase(m_devices.begin() + (device - m_devices.data()));
        announceList();
    }
}

void ScriptedDevices::rename(const QString& id, const QString& name)
{
    Device* device = findDevice(m_devices, id);
    if (!device) {
        return;
    }
    device->name = name;
    announceList();
    if (id == m_currentId) {
        Q_EMIT currentInfoChanged();
    }
}

void ScriptedDevices::setState(const QString& id, DeviceState state)
{
    Device* device = findDevice(m_devices, id);
    if (!device || device->state == state) {
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

QString ScriptedDevices::defaultName() const
{
    return m_list.empty() ? QString() : m_list.front().name;
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
    const Device* device = findDevice(m_devices, id);
    return device ? device->state : DeviceState::Absent;
}

// An unplugged device keeps its last name.
void ScriptedDevices::refreshCurrentName()
{
    if (const DeviceInfo* device = findDevice(m_list, m_currentId)) {
        m_currentName = device->name;
    }
}

void ScriptedDevices::announceList()
{
    m_list = withDistinctNames(DeviceList(m_devices.begin(), m_devices.end()));
    refreshCurrentName();
    Q_EMIT listChanged();
    Q_EMIT currentChanged(m_currentId);
}

} // namespace Platform
