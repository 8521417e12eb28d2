// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <pipewire/pipewire.h>

namespace Platform {

// Listens to a link between a camera and whoever looks at it: where the two can't agree, or the
// driver refuses what they agreed on, the link alone is told. On the camera thread only.
class LinkProbe
{
public:
    // Called from inside the probe, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void linkFailed(quint32 nodeId, quint32 readerId, const QString& error) = 0;

    protected:
        ~Listener() = default;
    };

    LinkProbe(pw_registry* registry, quint32 globalId, Listener& listener);
    ~LinkProbe();
    LinkProbe(const LinkProbe&) = delete;
    LinkProbe& operator=(const LinkProbe&) = delete;

private:
    void onInfo(const pw_link_info& info);

    static const pw_link_events LinkEvents;

    Listener& m_listener;
    pw_proxy* m_proxy;
    spa_hook m_hook{};
};

} // namespace Platform
