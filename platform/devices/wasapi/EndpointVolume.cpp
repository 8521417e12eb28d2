// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/wasapi/EndpointVolume.h"

#include "platform/devices/wasapi/EndpointNotice.h"

#include <utility>

namespace Platform {

EndpointVolume::~EndpointVolume()
{
    close();
}

EndpointVolume& EndpointVolume::operator=(EndpointVolume&& other) noexcept
{
    std::swap(m_volume, other.m_volume);
    std::swap(m_notice, other.m_notice);
    return *this;
}

HRESULT EndpointVolume::open(IMMDevice& endpoint, EndpointNotice& notice)
{
    close();
    const HRESULT error =
        endpoint.Activate(__uuidof(IAudioEndpointVolume), CLSCTX_ALL, nullptr, m_volume.putVoid());
    // Without notices, the volume is still read with every list.
    if (SUCCEEDED(error) && SUCCEEDED(m_volume->RegisterControlChangeNotify(&notice))) {
        m_notice = &notice;
    }
    return error;
}

HRESULT EndpointVolume::read(VolumeState& state) const
{
    float level = 0.0F;
    BOOL isMuted = FALSE;
    HRESULT error = m_volume->GetMasterVolumeLevelScalar(&level);
    if (SUCCEEDED(error)) {
        error = m_volume->GetMute(&isMuted);
    }
    if (SUCCEEDED(error)) {
        state = {100.0 * static_cast<double>(level), isMuted != FALSE};
    }
    return error;
}

HRESULT EndpointVolume::set(int percent)
{
    const HRESULT unmuted = m_volume->SetMute(FALSE, nullptr);
    const HRESULT error =
        m_volume->SetMasterVolumeLevelScalar(static_cast<float>(percent) / 100.0F, nullptr);
    return FAILED(error) ? error : unmuted;
}

void EndpointVolume::close()
{
    if (EndpointNotice* notice = std::exchange(m_notice, nullptr)) {
        m_volume->UnregisterControlChangeNotify(notice);
    }
    m_volume.reset();
}

} // namespace Platform
