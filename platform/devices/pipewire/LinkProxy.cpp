// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/LinkProxy.h"

namespace Platform {

const pw_link_events LinkProxy::LinkEvents = [] {
    pw_link_events events{};
    events.version = PW_VERSION_LINK_EVENTS;
    events.info = [](void* data, const pw_link_info* info) {
        static_cast<LinkProxy*>(data)->onInfo(*info);
    };
    return events;
}();

LinkProxy::LinkProxy(pw_registry* registry, quint32 globalId, Listener& listener)
    : m_listener(listener), m_proxy(registry, globalId, PW_TYPE_INTERFACE_Link, PW_VERSION_LINK)
{
    if (auto* link = m_proxy.get<pw_link>()) {
        pw_link_add_listener(link, m_proxy.newHook(), &LinkEvents, this);
    }
}

void LinkProxy::onInfo(const pw_link_info& info)
{
    if (info.state == PW_LINK_STATE_ERROR) {
        m_listener.linkFailed(info.output_node_id, info.input_node_id,
                              QString::fromUtf8(info.error));
    }
}

} // namespace Platform
