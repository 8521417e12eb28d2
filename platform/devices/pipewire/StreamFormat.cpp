// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/StreamFormat.h"

#include <algorithm>
#include <iterator>
#include <spa/param/video/raw.h>

namespace Platform {

namespace {

struct LayoutName
{
    uint32_t spaFormat;
    PixelLayout layout;
};

// In the order of preference: what needs the least work first.
constexpr LayoutName LayoutNames[] = {
    {SPA_VIDEO_FORMAT_YUY2, PixelLayout::Yuy2}, {SPA_VIDEO_FORMAT_NV12, PixelLayout::Nv12},
    {SPA_VIDEO_FORMAT_I420, PixelLayout::I420}, {SPA_VIDEO_FORMAT_UYVY, PixelLayout::Uyvy},
    {SPA_VIDEO_FORMAT_BGRx, PixelLayout::Bgrx}, {SPA_VIDEO_FORMAT_BGRA, PixelLayout::Bgrx},
    {SPA_VIDEO_FORMAT_RGBx, PixelLayout::Rgbx}, {SPA_VIDEO_FORMAT_RGBA, PixelLayout::Rgbx},
    {SPA_VIDEO_FORMAT_xRGB, PixelLayout::Xrgb}, {SPA_VIDEO_FORMAT_ARGB, PixelLayout::Xrgb},
    {SPA_VIDEO_FORMAT_xBGR, PixelLayout::Xbgr}, {SPA_VIDEO_FORMAT_ABGR, PixelLayout::Xbgr},
    {SPA_VIDEO_FORMAT_RGB, PixelLayout::Rgb},   {SPA_VIDEO_FORMAT_BGR, PixelLayout::Bgr},
};

} // namespace

const std::vector<uint32_t>& readableFormats()
{
    static const std::vector<uint32_t> formats = [] {
        std::vector<uint32_t> result;
        for (const LayoutName& name : LayoutNames) {
            result.push_back(name.spaFormat);
        }
        return result;
    }();
    return formats;
}

PixelLayout layoutOf(uint32_t spaFormat)
{
    const auto* const it =
        std::find_if(std::begin(LayoutNames), std::end(LayoutNames),
                     [spaFormat](const LayoutName& name) { return name.spaFormat == spaFormat; });
    return it == std::end(LayoutNames) ? PixelLayout::None : it->layout;
}

} // namespace Platform
