// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/VirtualDevice.h"

#include <iterator>
#include <spa/monitor/utils.h>

namespace TestSupport {

namespace {

constexpr int WaitMs = 100;
constexpr int WaitCount = 50;

} // namespace

const spa_device_methods VirtualDevice::Methods = [] {
    spa_device_methods methods{};
    methods.version = SPA_VERSION_DEVICE_METHODS;
    methods.add_listener = [](void* self, spa_hook* listener, const spa_device_events* events,
                              void* data) {
        static_cast<VirtualDevice*>(self)->tell(listener, events, data);
        return 0;
    };
    methods.sync = [](void* self, int sequence) {
        spa_device_emit_result(&static_cast<VirtualDevice*>(self)->m_hooks, sequence, 0, 0,
                               nullptr);
        return 0;
    };
    return methods;
}();

const pw_proxy_events VirtualDevice::ProxyEvents = [] {
    pw_proxy_events events{};
    events.version = PW_VERSION_PROXY_EVENTS;
    events.bound = [](void* self, uint32_t id) { static_cast<VirtualDevice*>(self)->m_id = id; };
    return events;
}();

VirtualDevice::VirtualDevice(pw_loop* loop, const QString& busPath, const QString& capabilities)
    : m_busPath(busPath.toUtf8()),
      m_capabilities(capabilities.toUtf8()),
      m_loop(loop),
      m_context(pw_context_new(loop, nullptr, 0))
{
    spa_hook_list_init(&m_hooks);
    m_device.iface =
        SPA_INTERFACE_INIT(SPA_TYPE_INTERFACE_Device, SPA_VERSION_DEVICE, &Methods, this);
    pw_core* const core = pw_context_connect(m_context, nullptr, 0);
    if (!core) {
        return;
    }
    const spa_dict_item items[] = {{PW_KEY_MEDIA_CLASS, "Video/Device"},
                                   {PW_KEY_DEVICE_NAME, "virtual_device"}};
    const spa_dict properties = SPA_DICT_INIT_ARRAY(items);
    m_proxy = static_cast<pw_proxy*>(
        pw_core_export(core, SPA_TYPE_INTERFACE_Device, &properties, &m_device, 0));
    if (m_proxy) {
        pw_proxy_add_listener(m_proxy, &m_proxyHook, &ProxyEvents, this);
    }
}

VirtualDevice::~VirtualDevice()
{
    pw_context_destroy(m_context); // closes its connection, too
}

bool VirtualDevice::waitUntilKnown()
{
    pw_loop_enter(m_loop);
    for (int i = 0; i < WaitCount && m_proxy && m_id == SPA_ID_INVALID; ++i) {
        pw_loop_iterate(m_loop, WaitMs);
    }
    pw_loop_leave(m_loop);
    return m_id != SPA_ID_INVALID;
}

void VirtualDevice::tell(spa_hook* listener, const spa_device_events* events, void* data)
{
    spa_hook_list save;
    spa_hook_list_isolate(&m_hooks, &save, listener, events, data);
    const spa_dict_item items[] = {{PW_KEY_DEVICE_BUS_PATH, m_busPath.constData()},
                                   {"device.capabilities", m_capabilities.constData()}};
    const spa_dict properties = SPA_DICT_INIT_ARRAY(items);
    spa_device_info info = SPA_DEVICE_INFO_INIT();
    info.change_mask = SPA_DEVICE_CHANGE_MASK_PROPS;
    info.props = &properties;
    spa_device_emit_info(&m_hooks, &info);
    spa_hook_list_join(&m_hooks, &save);
}

} // namespace TestSupport
