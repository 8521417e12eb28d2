// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraList.h"

#include <pipewire/pipewire.h>

namespace Platform {

// Asks the server for what it tells of a camera's device alone: where it is plugged in, and what it
// can do. On the camera thread only.
class DeviceProbe
{
public:
    // Called from inside the probe, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void deviceDescribed(quint32 globalId) = 0;

    protected:
        ~Listener() = default;
    };

    DeviceProbe(pw_registry* registry, quint32 globalId, Listener& listener);
    ~DeviceProbe();
    DeviceProbe(const DeviceProbe&) = delete;
    DeviceProbe& operator=(const DeviceProbe&) = delete;

    CameraNode completed(CameraNode node) const; // with what the node itself doesn't say

private:
    void onInfo(const pw_device_info& info);

    static const pw_device_events DeviceEvents;

    Listener& m_listener;
    quint32 m_globalId;
    QString m_place;
    QString m_capabilities;
    pw_proxy* m_proxy;
    spa_hook m_hook{};
};

} // namespace Platform
