// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFormat.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace Platform {

namespace {

constexpr int MaxStride = 65536; // bytes

struct Format
{
    const GUID& subtype;
    PixelFormat pixelFormat;
};

const Format Formats[] = {
    {MFVideoFormat_YUY2, PixelFormat::Yuy2},   {MFVideoFormat_UYVY, PixelFormat::Uyvy},
    {MFVideoFormat_NV12, PixelFormat::Nv12},   {MFVideoFormat_I420, PixelFormat::I420},
    {MFVideoFormat_IYUV, PixelFormat::I420},   {MFVideoFormat_RGB32, PixelFormat::Bgrx},
    {MFVideoFormat_ARGB32, PixelFormat::Bgrx}, {MFVideoFormat_RGB24, PixelFormat::Bgr},
    {MFVideoFormat_MJPG, PixelFormat::Mjpg},
};

PixelFormat pixelFormatOf(IMFMediaType& type)
{
    GUID subtype{};
    if (FAILED(type.GetGUID(MF_MT_SUBTYPE, &subtype))) {
        return PixelFormat::None;
    }
    const auto* const found =
        std::find_if(std::begin(Formats), std::end(Formats), [&subtype](const Format& one) {
            return IsEqualGUID(one.subtype, subtype) != 0;
        });
    return found == std::end(Formats) ? PixelFormat::None : found->pixelFormat;
}

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

// Two numbers of 32 bits in one.
struct Pair
{
    quint32 high = 0;
    quint32 low = 0;
};

Pair pairOf(IMFMediaType& type, const GUID& key)
{
    UINT64 both = 0;
    if (FAILED(type.GetUINT64(key, &both))) {
        return {};
    }
    return {static_cast<quint32>(both >> 32), static_cast<quint32>(both & 0xffffffffU)};
}

UINT32 numberOf(IMFMediaType& type, const GUID& key, UINT32 otherwise)
{
    UINT32 result = otherwise;
    return SUCCEEDED(type.GetUINT32(key, &result)) ? result : otherwise;
}

QSize sizeOf(IMFMediaType& type)
{
    const Pair pair = pairOf(type, MF_MT_FRAME_SIZE);
    const bool isPlausible = pair.high <= MaxFrameEdge && pair.low <= MaxFrameEdge;
    return isPlausible ? QSize(static_cast<int>(pair.high), static_cast<int>(pair.low)) : QSize();
}

FrameRate rateOf(IMFMediaType& type)
{
    const Pair pair = pairOf(type, MF_MT_FRAME_RATE);
    return pair.low == 0 ? FrameRate() : FrameRate{pair.high, pair.low};
}

YuvColor colorOf(IMFMediaType& type)
{
    const bool isFull =
        numberOf(type, MF_MT_VIDEO_NOMINAL_RANGE, MFNominalRange_Unknown) == MFNominalRange_0_255;
    const bool isBt709 = numberOf(type, MF_MT_YUV_MATRIX, MFVideoTransferMatrix_Unknown) ==
                         MFVideoTransferMatrix_BT709;
    if (isBt709) {
        return isFull ? YuvColor::Bt709Full : YuvColor::Bt709;
    }
    return isFull ? YuvColor::Bt601Full : YuvColor::Bt601;
}

} // namespace

MediaFormat MediaFormat::of(IMFMediaType& type)
{
    MediaFormat result;
    result.frame = {pixelFormatOf(type), colorOf(type), sizeOf(type)};
    result.rate = rateOf(type);
    if (result.frame.pixelFormat == PixelFormat::Mjpg) {
        return result;
    }
    const int rowBytes = bytesPerPixel(result.frame.pixelFormat) * result.frame.size.width();
    const bool isBitmap = isRgb(result.frame.pixelFormat);
    // RGB without a stride is stored as in a bitmap: the last row first, in whole words.
    const int usualStride = isBitmap ? -((rowBytes + 3) & ~3) : rowBytes;
    const auto stride =
        static_cast<qint32>(numberOf(type, MF_MT_DEFAULT_STRIDE, static_cast<UINT32>(usualStride)));
    result.isBottomUp = isBitmap && stride < 0;
    const qint64 distance = std::abs(static_cast<qint64>(stride));
    const bool isPlausible = distance >= rowBytes && distance <= MaxStride;
    result.stride = isPlausible ? static_cast<int>(distance) : 0;
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
