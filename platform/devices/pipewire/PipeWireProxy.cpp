// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireProxy.h"

namespace Platform {

PipeWireProxy::PipeWireProxy(pw_registry* registry, quint32 globalId, const char* type,
                             quint32 version)
    : m_proxy(static_cast<pw_proxy*>(pw_registry_bind(registry, globalId, type, version, 0)))
{
}

PipeWireProxy::~PipeWireProxy()
{
    for (spa_hook& hook : m_hooks) {
        spa_hook_remove(&hook);
    }
    if (m_proxy) {
        pw_proxy_destroy(m_proxy);
    }
}

spa_hook* PipeWireProxy::newHook()
{
    return &m_hooks.emplace_back();
}

} // namespace Platform
