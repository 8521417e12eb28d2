// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/EndpointNotice.h"

#include <utility>

namespace Platform {

EndpointNotice::EndpointNotice(std::function<void()> changed) : m_changed(std::move(changed))
{
}

HRESULT EndpointNotice::QueryInterface(REFIID id, void** object)
{
    if (id == __uuidof(IUnknown) || id == __uuidof(IMMNotificationClient)) {
        *object = static_cast<IMMNotificationClient*>(this);
    } else if (id == __uuidof(IAudioEndpointVolumeCallback)) {
        *object = static_cast<IAudioEndpointVolumeCallback*>(this);
    } else {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG EndpointNotice::AddRef()
{
    return ++m_references;
}

ULONG EndpointNotice::Release()
{
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT EndpointNotice::OnDeviceStateChanged(LPCWSTR /*id*/, DWORD /*state*/)
{
    return changed();
}

HRESULT EndpointNotice::OnDeviceAdded(LPCWSTR /*id*/)
{
    return changed();
}

HRESULT EndpointNotice::OnDeviceRemoved(LPCWSTR /*id*/)
{
    return changed();
}

HRESULT EndpointNotice::OnDefaultDeviceChanged(EDataFlow /*flow*/, ERole /*role*/, LPCWSTR /*id*/)
{
    return changed();
}

HRESULT EndpointNotice::OnPropertyValueChanged(LPCWSTR /*id*/, const PROPERTYKEY /*key*/)
{
    return changed();
}

HRESULT EndpointNotice::OnNotify(PAUDIO_VOLUME_NOTIFICATION_DATA /*data*/)
{
    return changed();
}

HRESULT EndpointNotice::changed() const
{
    m_changed();
    return S_OK;
}

} // namespace Platform
