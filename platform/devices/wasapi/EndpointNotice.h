// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windows/ComCallback.h"

#include <functional>

#include <windows.h>
// Must follow windows.h.
#include <endpointvolume.h>
#include <mmdeviceapi.h>

namespace Platform {

// Hears from Windows that an endpoint came or went, or has another name, default or volume, and
// says only that something changed. Windows calls it on threads of its own, which must not wait,
// and may keep it for a while after it was unregistered; so the function owns all that it uses.
class EndpointNotice final : public ComCallback<IMMNotificationClient, IAudioEndpointVolumeCallback>
{
public:
    explicit EndpointNotice(std::function<void()> changed);

    HRESULT STDMETHODCALLTYPE OnDeviceStateChanged(LPCWSTR id, DWORD state) override;
    HRESULT STDMETHODCALLTYPE OnDeviceAdded(LPCWSTR id) override;
    HRESULT STDMETHODCALLTYPE OnDeviceRemoved(LPCWSTR id) override;
    HRESULT STDMETHODCALLTYPE OnDefaultDeviceChanged(EDataFlow flow, ERole role,
                                                     LPCWSTR id) override;
    HRESULT STDMETHODCALLTYPE OnPropertyValueChanged(LPCWSTR id, const PROPERTYKEY key) override;
    HRESULT STDMETHODCALLTYPE OnNotify(PAUDIO_VOLUME_NOTIFICATION_DATA data) override;

private:
    ~EndpointNotice() override = default; // by Release()
    HRESULT changed() const;

    const std::function<void()> m_changed;
};

} // namespace Platform
