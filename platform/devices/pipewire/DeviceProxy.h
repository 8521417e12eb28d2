// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraList.h"
#include "platform/devices/pipewire/PipeWireProxy.h"

namespace Platform {

// The device that a camera's node belongs to. Some properties of a camera are told for the device
// only: its bus path and its capabilities. On the camera thread only.
class DeviceProxy
{
public:
    // Called from inside the proxy, which must not be destroyed there.
    class Listener
    {
    public:
        virtual void deviceDescribed(quint32 globalId) = 0;

    protected:
        ~Listener() = default;
    };

    DeviceProxy(pw_registry* registry, quint32 globalId, Listener& listener);

    CameraNode completed(CameraNode node) const; // with the properties that the node lacks

private:
    void onInfo(const pw_device_info& info);

    static const pw_device_events DeviceEvents;

    Listener& m_listener;
    quint32 m_globalId;
    QString m_place;
    QString m_capabilities;
    PipeWireProxy m_proxy;
};

} // namespace Platform
