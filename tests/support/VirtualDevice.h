// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <pipewire/pipewire.h>
#include <spa/monitor/device.h>

namespace TestSupport {

// The device that the node of a virtual camera belongs to.
class VirtualDevice
{
public:
    VirtualDevice(pw_loop* loop, const QString& busPath, const QString& capabilities);
    ~VirtualDevice();
    VirtualDevice(const VirtualDevice&) = delete;
    VirtualDevice& operator=(const VirtualDevice&) = delete;

    bool waitUntilKnown(); // by the server
    uint32_t id() const { return m_id; }

private:
    void tell(spa_hook* listener, const spa_device_events* events, void* data);

    static const spa_device_methods Methods;
    static const pw_proxy_events ProxyEvents;

    QByteArray m_busPath;
    QByteArray m_capabilities;
    pw_loop* m_loop;
    pw_context* m_context;
    pw_proxy* m_proxy = nullptr;
    spa_device m_device{};
    spa_hook_list m_hooks{};
    spa_hook m_proxyHook{};
    uint32_t m_id = SPA_ID_INVALID;
};

} // namespace TestSupport
