// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraList.h"

#include <pipewire/pipewire.h>

namespace Platform {

// Asks the server for what it doesn't tell of a node unasked: its formats, and later why it can't
// run. On the camera thread only.
class NodeProbe
{
public:
    // Called from inside the probe, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void nodeDescribed(quint32 globalId, const CameraNode& node) = 0; // once
        virtual void nodeFailed(const CameraNode& node, const QString& error) = 0;

    protected:
        ~Listener() = default;
    };

    NodeProbe(pw_registry* registry, quint32 globalId, const spa_dict* properties,
              Listener& listener);
    ~NodeProbe();
    NodeProbe(const NodeProbe&) = delete;
    NodeProbe& operator=(const NodeProbe&) = delete;

    bool isDone() const { return m_isDone; }
    const CameraNode& node() const { return m_node; }
    QString error() const { return m_error; } // of the node's last start; empty where it worked

private:
    void onInfo(const pw_node_info& info);
    void onFormat(const spa_pod* format);
    void onDone();

    static const pw_node_events NodeEvents;
    static const pw_proxy_events ProxyEvents;

    Listener& m_listener;
    quint32 m_globalId;
    CameraNode m_node;
    pw_proxy* m_proxy = nullptr;
    spa_hook m_nodeHook{};
    spa_hook m_proxyHook{};
    QString m_error;
    bool m_isDone = false;
};

} // namespace Platform
