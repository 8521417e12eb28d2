// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/MediaType.h"

#include <cstring>
#include <utility>

// Must follow windows.h.
#include <objbase.h>

namespace Platform {

MediaType::MediaType(const AM_MEDIA_TYPE& other) : m_type(other)
{
    m_type.pbFormat = nullptr;
    if (other.pbFormat && other.cbFormat > 0) {
        m_type.pbFormat = static_cast<BYTE*>(CoTaskMemAlloc(other.cbFormat));
    }
    if (m_type.pbFormat) {
        std::memcpy(m_type.pbFormat, other.pbFormat, other.cbFormat);
    } else {
        m_type.cbFormat = 0; // a filter may claim any size
    }
    if (m_type.pUnk) {
        m_type.pUnk->AddRef();
    }
}

MediaType::~MediaType()
{
    CoTaskMemFree(m_type.pbFormat);
    if (m_type.pUnk) {
        m_type.pUnk->Release();
    }
}

MediaType::MediaType(MediaType&& other) noexcept : m_type(other.release())
{
}

MediaType& MediaType::operator=(MediaType&& other) noexcept
{
    std::swap(m_type, other.m_type);
    return *this;
}

MediaType MediaType::taken(AM_MEDIA_TYPE* allocated)
{
    MediaType result;
    if (allocated) {
        std::swap(result.m_type, *allocated);
        CoTaskMemFree(allocated);
    }
    return result;
}

AM_MEDIA_TYPE MediaType::release()
{
    return std::exchange(m_type, AM_MEDIA_TYPE{});
}

} // namespace Platform
