// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>
// Must follow windows.h.
#include <strmif.h>

namespace Platform {

// Owns a media type of DirectShow, and the memory and object that it refers to.
class MediaType
{
public:
    MediaType() = default;
    explicit MediaType(const AM_MEDIA_TYPE& other); // a copy
    ~MediaType();
    MediaType(MediaType&& other) noexcept;
    MediaType& operator=(MediaType&& other) noexcept;
    MediaType(const MediaType&) = delete;
    MediaType& operator=(const MediaType&) = delete;

    // One that DirectShow allocated; may be null. Empties that structure, and frees it.
    static MediaType taken(AM_MEDIA_TYPE* allocated);

    AM_MEDIA_TYPE& get() { return m_type; }
    const AM_MEDIA_TYPE& get() const { return m_type; }
    AM_MEDIA_TYPE release(); // for who becomes its owner

private:
    AM_MEDIA_TYPE m_type{};
};

} // namespace Platform
