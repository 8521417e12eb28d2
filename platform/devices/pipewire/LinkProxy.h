// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pipewire/PipeWireProxy.h"
#include "platform/devices/pipewire/ServerError.h"

namespace Platform {

// A link between a camera and a program that reads from it. If the two can't agree on a format, or
// the driver refuses what they agreed on, the server says so for the link only. On the camera
// thread only.
class LinkProxy
{
public:
    // Called from inside the proxy, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void linkFailed(quint32 nodeId, quint32 readerId, const ServerError& error) = 0;

    protected:
        ~Listener() = default;
    };

    LinkProxy(pw_registry* registry, quint32 globalId, Listener& listener);

private:
    void onInfo(const pw_link_info& info);
    void onError(int result, const char* text);
    void tellError();

    static const pw_link_events LinkEvents;
    static const pw_proxy_events ProxyEvents;

    Listener& m_listener;
    quint32 m_nodeId = 0;
    quint32 m_readerId = 0;
    ServerError m_error; // not told yet
    PipeWireProxy m_proxy;
};

} // namespace Platform
