// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/SoundDevices.h"
#include "platform/devices/wasapi/EndpointVolume.h"
#include "platform/devices/windows/ComPointer.h"

#include <functional>
#include <map>

struct IMMDevice;
struct IMMDeviceEnumerator;

namespace Platform {

class EndpointNotice;
class WinePulseDevices;

// The endpoints that Windows has, and their volumes. Any call may hang in a driver or in Windows'
// audio service, and so may the destructor. Endpoint thread only, with COM.
class EndpointList
{
public:
    // changed is called on threads of Windows, even after the end of this object.
    explicit EndpointList(std::function<void()> changed);
    ~EndpointList();
    EndpointList(const EndpointList&) = delete;
    EndpointList& operator=(const EndpointList&) = delete;

    // Makes a list, whole or not at all; then the next call connects to the audio service anew.
    HRESULT read(SoundDevices& devices);
    // Sets the volume and unmutes, if the endpoint was in the last list.
    HRESULT setVolume(SoundKind kind, const QString& id, int percent);

private:
    using Volumes = std::map<QString, EndpointVolume>;

    HRESULT connect();
    void disconnect();
    HRESULT readSide(SoundKind kind, const WinePulseDevices& leftOut, SoundSide& side);
    HRESULT readEndpoint(IMMDevice& endpoint, Volumes& before, Volumes& now, SoundDevice& device);
    HRESULT readVolume(IMMDevice& endpoint, EndpointVolume& volume, SoundDevice& device);
    QString defaultId(SoundKind kind) const;
    Volumes& volumes(SoundKind kind)
    {
        return kind == SoundKind::Speaker ? m_speakers : m_microphones;
    }

    ComPointer<EndpointNotice> m_notice; // outlives all that it is registered at
    ComPointer<IMMDeviceEnumerator> m_enumerator;
    Volumes m_speakers;
    Volumes m_microphones;
};

} // namespace Platform
