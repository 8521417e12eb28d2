// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/DeviceProbe.h"

#include "platform/devices/pipewire/NodeProperties.h"

namespace Platform {

const pw_device_events DeviceProbe::DeviceEvents = [] {
    pw_device_events events{};
    events.version = PW_VERSION_DEVICE_EVENTS;
    events.info = [](void* data, const pw_device_info* info) {
        static_cast<DeviceProbe*>(data)->onInfo(*info);
    };
    return events;
}();

DeviceProbe::DeviceProbe(pw_registry* registry, quint32 globalId, Listener& listener)
    : m_listener(listener),
      m_globalId(globalId),
      m_proxy(static_cast<pw_proxy*>(
          pw_registry_bind(registry, globalId, PW_TYPE_INTERFACE_Device, PW_VERSION_DEVICE, 0)))
{
    if (m_proxy != nullptr) {
        pw_device_add_listener(reinterpret_cast<pw_device*>(m_proxy), &m_hook, &DeviceEvents, this);
    }
}

DeviceProbe::~DeviceProbe()
{
    if (m_proxy != nullptr) {
        spa_hook_remove(&m_hook);
        pw_proxy_destroy(m_proxy);
    }
}

CameraNode DeviceProbe::completed(CameraNode node) const
{
    if (node.place.isEmpty()) {
        node.place = m_place;
    }
    if (node.capabilities.isEmpty()) {
        node.capabilities = m_capabilities;
    }
    return node;
}

void DeviceProbe::onInfo(const pw_device_info& info)
{
    if (info.props != nullptr) {
        m_place = placeOf(info.props);
        m_capabilities = propertyOf(info.props, CapabilitiesKey);
        m_listener.deviceDescribed(m_globalId);
    }
}

} // namespace Platform
