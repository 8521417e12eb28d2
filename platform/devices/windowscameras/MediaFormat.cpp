// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/MediaFormat.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

// Must follow windows.h.
#include <mfapi.h>
#include <uuids.h>

namespace Platform {

namespace {

constexpr int MaxStride = 65536; // bytes

struct Format
{
    const GUID& subtype;
    PixelFormat pixelFormat;
};

// Those that have a code of four letters are the same for both systems.
const Format Formats[] = {
    {MFVideoFormat_YUY2, PixelFormat::Yuy2},   {MFVideoFormat_UYVY, PixelFormat::Uyvy},
    {MFVideoFormat_NV12, PixelFormat::Nv12},   {MFVideoFormat_I420, PixelFormat::I420},
    {MFVideoFormat_IYUV, PixelFormat::I420},   {MFVideoFormat_MJPG, PixelFormat::Mjpg},
    {MFVideoFormat_RGB32, PixelFormat::Bgrx},  {MEDIASUBTYPE_RGB32, PixelFormat::Bgrx},
    {MFVideoFormat_ARGB32, PixelFormat::Bgrx}, {MEDIASUBTYPE_ARGB32, PixelFormat::Bgrx},
    {MFVideoFormat_RGB24, PixelFormat::Bgr},   {MEDIASUBTYPE_RGB24, PixelFormat::Bgr},
};

bool isRgb(PixelFormat format)
{
    return format == PixelFormat::Bgrx || format == PixelFormat::Bgr;
}

int bytesPerPixel(PixelFormat format)
{
    switch (format) {
    case PixelFormat::Bgrx:
        return 4;
    case PixelFormat::Bgr:
        return 3;
    case PixelFormat::Yuy2:
    case PixelFormat::Uyvy:
        return 2;
    default:
        return 1; // of the first plane
    }
}

} // namespace

PixelFormat MediaFormat::pixelFormatOf(const GUID& subtype)
{
    const auto* const found =
        std::find_if(std::begin(Formats), std::end(Formats), [&subtype](const Format& one) {
            return IsEqualGUID(one.subtype, subtype) != 0;
        });
    return found == std::end(Formats) ? PixelFormat::None : found->pixelFormat;
}

QSize MediaFormat::sizeOf(qint64 width, qint64 height)
{
    const bool isPlausible =
        width > 0 && width <= MaxFrameEdge && height > 0 && height <= MaxFrameEdge;
    return isPlausible ? QSize(static_cast<int>(width), static_cast<int>(height)) : QSize();
}

MediaFormat MediaFormat::of(const FrameFormat& frame, const FrameRate& rate, qint32 stride)
{
    MediaFormat result;
    result.frame = frame;
    result.rate = rate;
    if (frame.pixelFormat == PixelFormat::Mjpg) {
        return result;
    }
    const int rowBytes = bytesPerPixel(frame.pixelFormat) * frame.size.width();
    const bool isBitmap = isRgb(frame.pixelFormat);
    // RGB without a stride is stored as in a bitmap: the last row first, in whole words.
    const int usualStride = isBitmap ? -((rowBytes + 3) & ~3) : rowBytes;
    const qint32 known = stride == 0 ? usualStride : stride;
    result.isBottomUp = isBitmap && known < 0;
    const qint64 distance = std::abs(static_cast<qint64>(known));
    const bool isPlausible = distance >= rowBytes && distance <= MaxStride;
    result.stride = isPlausible ? static_cast<int>(distance) : 0;
    return result;
}

CameraModes::Offer MediaFormat::offer() const
{
    CameraModes::Offer result;
    result.pixelFormat = frame.pixelFormat;
    result.smallest = frame.size;
    result.largest = frame.size;
    result.lowest = rate;
    result.highest = rate;
    return result;
}

FrameView MediaFormat::view(const uchar* data, std::size_t bytes) const
{
    const std::size_t least = static_cast<std::size_t>(stride) * frame.size.height();
    FrameView result;
    result.planeCount = 1;
    result.planes[0] = {data, bytes, bytes >= least ? stride : 0};
    return result;
}

FrameOrientation MediaFormat::orientation() const
{
    // Turned by half and mirrored is upside down.
    return isBottomUp ? FrameOrientation{2, true} : FrameOrientation{};
}

} // namespace Platform
