// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pipewire/CameraList.h"

#include <functional>
#include <pipewire/pipewire.h>

namespace Platform {

// Asks the server for what it doesn't tell of a node unasked: its formats. On the camera thread
// only. The callback may destroy nothing but itself's owner's other probes.
class NodeProbe
{
public:
    NodeProbe(pw_registry* registry, quint32 globalId, const spa_dict* properties,
              std::function<void()> done);
    ~NodeProbe();
    NodeProbe(const NodeProbe&) = delete;
    NodeProbe& operator=(const NodeProbe&) = delete;

    const CameraNode& node() const { return m_node; }
    bool isDone() const { return m_isDone; }

private:
    void onFormat(const spa_pod* format);
    void onDone();

    static const pw_node_events NodeEvents;
    static const pw_proxy_events ProxyEvents;

    CameraNode m_node;
    std::function<void()> m_done;
    pw_proxy* m_proxy = nullptr;
    spa_hook m_nodeHook{};
    spa_hook m_proxyHook{};
    bool m_isDone = false;
};

} // namespace Platform
