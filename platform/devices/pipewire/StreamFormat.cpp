// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/StreamFormat.h"

#include <algorithm>
#include <iterator>
#include <spa/param/video/raw.h>

namespace Platform {

namespace {

struct Format
{
    uint32_t spaFormat;
    PixelFormat pixelFormat;
};

// The formats that need the least conversion come first.
constexpr Format Formats[] = {
    {SPA_VIDEO_FORMAT_YUY2, PixelFormat::Yuy2}, {SPA_VIDEO_FORMAT_NV12, PixelFormat::Nv12},
    {SPA_VIDEO_FORMAT_I420, PixelFormat::I420}, {SPA_VIDEO_FORMAT_UYVY, PixelFormat::Uyvy},
    {SPA_VIDEO_FORMAT_BGRx, PixelFormat::Bgrx}, {SPA_VIDEO_FORMAT_BGRA, PixelFormat::Bgrx},
    {SPA_VIDEO_FORMAT_RGBx, PixelFormat::Rgbx}, {SPA_VIDEO_FORMAT_RGBA, PixelFormat::Rgbx},
    {SPA_VIDEO_FORMAT_xRGB, PixelFormat::Xrgb}, {SPA_VIDEO_FORMAT_ARGB, PixelFormat::Xrgb},
    {SPA_VIDEO_FORMAT_xBGR, PixelFormat::Xbgr}, {SPA_VIDEO_FORMAT_ABGR, PixelFormat::Xbgr},
    {SPA_VIDEO_FORMAT_RGB, PixelFormat::Rgb},   {SPA_VIDEO_FORMAT_BGR, PixelFormat::Bgr},
};

} // namespace

const std::vector<uint32_t>& readableFormats()
{
    static const std::vector<uint32_t> formats = [] {
        std::vector<uint32_t> result;
        for (const Format& format : Formats) {
            result.push_back(format.spaFormat);
        }
        return result;
    }();
    return formats;
}

std::vector<uint32_t> formatsOf(PixelFormat pixelFormat)
{
    std::vector<uint32_t> result;
    for (const Format& format : Formats) {
        if (format.pixelFormat == pixelFormat) {
            result.push_back(format.spaFormat);
        }
    }
    return result;
}

PixelFormat pixelFormatOf(uint32_t spaFormat)
{
    const auto* const it =
        std::find_if(std::begin(Formats), std::end(Formats),
                     [spaFormat](const Format& format) { return format.spaFormat == spaFormat; });
    return it == std::end(Formats) ? PixelFormat::None : it->pixelFormat;
}

} // namespace Platform
