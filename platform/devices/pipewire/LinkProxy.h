// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pipewire/PipeWireProxy.h"

#include <QString>

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
        virtual void linkFailed(quint32 nodeId, quint32 readerId, const QString& error) = 0;

    protected:
        ~Listener() = default;
    };

    LinkProxy(pw_registry* registry, quint32 globalId, Listener& listener);

private:
    void onInfo(const pw_link_info& info);

    static const pw_link_events LinkEvents;

    Listener& m_listener;
    PipeWireProxy m_proxy;
};

} // namespace Platform
