// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationFormat.h"

namespace Platform {

namespace {

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

PixelFormat pixelFormatOf(IMFMediaType& type)
{
    GUID subtype{};
    return SUCCEEDED(type.GetGUID(MF_MT_SUBTYPE, &subtype)) ? MediaFormat::pixelFormatOf(subtype)
                                                            : PixelFormat::None;
}

} // namespace

MediaFormat MediaFoundationFormat::of(IMFMediaType& type)
{
    const Pair size = pairOf(type, MF_MT_FRAME_SIZE);
    const auto stride = static_cast<qint32>(numberOf(type, MF_MT_DEFAULT_STRIDE, 0));
    return MediaFormat::of(
        {pixelFormatOf(type), colorOf(type), MediaFormat::sizeOf(size.high, size.low)},
        rateOf(type), stride);
}

} // namespace Platform
