// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/LinkProxy.h"

#include <utility>

namespace Platform {

const pw_link_events LinkProxy::LinkEvents = [] {
    pw_link_events events{};
    events.version = PW_VERSION_LINK_EVENTS;
    events.info = [](void* data, const pw_link_info* info) {
        static_cast<LinkProxy*>(data)->onInfo(*info);
    };
    return events;
}();

const pw_proxy_events LinkProxy::ProxyEvents = [] {
    pw_proxy_events events{};
    events.version = PW_VERSION_PROXY_EVENTS;
    events.error = [](void* data, int, int result, const char* text) {
        static_cast<LinkProxy*>(data)->onError(result, text);
    };
    events.done = [](void* data, int) { static_cast<LinkProxy*>(data)->tellError(); };
    return events;
}();

LinkProxy::LinkProxy(pw_registry* registry, quint32 globalId, Listener& listener)
    : m_listener(listener), m_proxy(registry, globalId, PW_TYPE_INTERFACE_Link, PW_VERSION_LINK)
{
    if (auto* link = m_proxy.get<pw_link>()) {
        pw_proxy_add_listener(m_proxy.get(), m_proxy.newHook(), &ProxyEvents, this);
        pw_link_add_listener(link, m_proxy.newHook(), &LinkEvents, this);
    }
}

void LinkProxy::onInfo(const pw_link_info& info)
{
    m_nodeId = info.output_node_id;
    m_readerId = info.input_node_id;
    if (info.state == PW_LINK_STATE_ERROR) {
        m_error = ServerError(info.error ? info.error : "The link to the camera failed");
        pw_proxy_sync(m_proxy.get(), 0); // the number, if there is one, comes before the answer
    }
}

void LinkProxy::onError(int result, const char* text)
{
    if (!m_error.isEmpty()) {
        m_error = ServerError(text, result);
        tellError();
    }
}

void LinkProxy::tellError()
{
    if (!m_error.isEmpty()) {
        m_listener.linkFailed(m_nodeId, m_readerId, std::exchange(m_error, {}));
    }
}

} // namespace Platform
