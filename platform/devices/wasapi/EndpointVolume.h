// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/DeviceVolume.h"
#include "platform/devices/windows/ComPointer.h"

struct IAudioEndpointVolume;
struct IMMDevice;

namespace Platform {

class EndpointNotice;

// Volume and mute of one endpoint, which all programs share. The notice hears of every change. Any
// call may hang in a driver. Endpoint thread only.
class EndpointVolume
{
public:
    EndpointVolume() = default;
    ~EndpointVolume();
    EndpointVolume(EndpointVolume&& other) noexcept = default;
    EndpointVolume& operator=(EndpointVolume&& other) noexcept;
    EndpointVolume(const EndpointVolume&) = delete;
    EndpointVolume& operator=(const EndpointVolume&) = delete;

    // The notice has to outlive it.
    HRESULT open(IMMDevice& endpoint, EndpointNotice& notice);
    HRESULT read(VolumeState& state) const; // what was opened
    HRESULT set(int percent);               // also unmutes
    bool isOpen() const { return static_cast<bool>(m_volume); }

private:
    void close();

    ComPointer<IAudioEndpointVolume> m_volume;
    EndpointNotice* m_notice = nullptr; // while it is registered
};

} // namespace Platform
