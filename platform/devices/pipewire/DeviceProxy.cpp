// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/DeviceProxy.h"

#include "platform/devices/pipewire/NodeProperties.h"

namespace Platform {

const pw_device_events DeviceProxy::DeviceEvents = [] {
    pw_device_events events{};
    events.version = PW_VERSION_DEVICE_EVENTS;
    events.info = [](void* data, const pw_device_info* info) {
        static_cast<DeviceProxy*>(data)->onInfo(*info);
    };
    return events;
}();

DeviceProxy::DeviceProxy(pw_registry* registry, quint32 globalId, Listener& listener)
    : m_listener(listener),
      m_globalId(globalId),
      m_proxy(registry, globalId, PW_TYPE_INTERFACE_Device, PW_VERSION_DEVICE)
{
    if (auto* device = m_proxy.get<pw_device>()) {
        pw_device_add_listener(device, m_proxy.newHook(), &DeviceEvents, this);
    }
}

CameraNode DeviceProxy::completed(CameraNode node) const
{
    if (node.place.isEmpty()) {
        node.place = m_place;
    }
    if (node.capabilities.isEmpty()) {
        node.capabilities = m_capabilities;
    }
    return node;
}

void DeviceProxy::onInfo(const pw_device_info& info)
{
    if (info.props) {
        m_place = placeOf(info.props);
        m_capabilities = propertyOf(info.props, CapabilitiesKey);
        m_listener.deviceDescribed(m_globalId);
    }
}

} // namespace Platform
