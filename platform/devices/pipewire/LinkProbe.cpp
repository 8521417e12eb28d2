// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/LinkProbe.h"

namespace Platform {

const pw_link_events LinkProbe::LinkEvents = [] {
    pw_link_events events{};
    events.version = PW_VERSION_LINK_EVENTS;
    events.info = [](void* data, const pw_link_info* info) {
        static_cast<LinkProbe*>(data)->onInfo(*info);
    };
    return events;
}();

LinkProbe::LinkProbe(pw_registry* registry, quint32 globalId, Listener& listener)
    : m_listener(listener),
      m_proxy(static_cast<pw_proxy*>(
          pw_registry_bind(registry, globalId, PW_TYPE_INTERFACE_Link, PW_VERSION_LINK, 0)))
{
    if (m_proxy != nullptr) {
        pw_link_add_listener(reinterpret_cast<pw_link*>(m_proxy), &m_hook, &LinkEvents, this);
    }
}

LinkProbe::~LinkProbe()
{
    if (m_proxy != nullptr) {
        spa_hook_remove(&m_hook);
        pw_proxy_destroy(m_proxy);
    }
}

void LinkProbe::onInfo(const pw_link_info& info)
{
    if (info.state == PW_LINK_STATE_ERROR) {
        m_listener.linkFailed(info.output_node_id, info.input_node_id,
                              QString::fromUtf8(info.error));
    }
}

} // namespace Platform
