// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraList.h"
#include "platform/devices/pipewire/PipeWireProxy.h"
#include "platform/devices/pipewire/ServerError.h"

namespace Platform {

// A video source. Asks the server for what it doesn't tell unasked: the formats, and later why the
// node can't run. On the camera thread only.
class NodeProxy
{
public:
    // Called from inside the proxy, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void nodeDescribed(quint32 globalId, const CameraNode& node) = 0; // once
        virtual void nodeFailed(const CameraNode& node, const ServerError& error) = 0;

    protected:
        ~Listener() = default;
    };

    NodeProxy(pw_registry* registry, quint32 globalId, const spa_dict* properties,
              Listener& listener);

    bool isDone() const { return m_isDone; }
    const CameraNode& node() const { return m_node; }
    // Of the node's last start; empty if that worked.
    const ServerError& error() const { return m_error; }

private:
    void onInfo(const pw_node_info& info);
    void onFormat(const spa_pod* format);
    void onError(int result, const char* text);
    void tellError();
    void onDone();

    static const pw_node_events NodeEvents;
    static const pw_proxy_events ProxyEvents;

    Listener& m_listener;
    quint32 m_globalId;
    CameraNode m_node;
    ServerError m_error;
    bool m_isErrorToTell = false;
    bool m_isDone = false;
    PipeWireProxy m_proxy;
};

} // namespace Platform
