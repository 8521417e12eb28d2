// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/EndpointNotice.h"

#include <utility>

namespace Platform {

EndpointNotice::EndpointNotice(std::function<void()> changed) : m_changed(std::move(changed))
{
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
