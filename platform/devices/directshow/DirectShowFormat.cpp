// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/directshow/DirectShowFormat.h"

#include <cstdlib>

// Must follow windows.h.
#include <amvideo.h>
#include <dvdmedia.h>
#include <uuids.h>

namespace Platform {

namespace {

constexpr LONGLONG TicksPerSecond = 10'000'000;

// What both kinds of description have in common.
struct Description
{
    LONGLONG* interval = nullptr; // null if there is no description
    const BITMAPINFOHEADER* bitmap = nullptr;
};

template <typename Header>
Description descriptionIn(const AM_MEDIA_TYPE& type)
{
    if (!type.pbFormat || type.cbFormat < sizeof(Header)) {
        return {};
    }
    auto* header = reinterpret_cast<Header*>(type.pbFormat);
    return {&header->AvgTimePerFrame, &header->bmiHeader};
}

Description descriptionOf(const AM_MEDIA_TYPE& type)
{
    if (IsEqualGUID(type.formattype, FORMAT_VideoInfo)) {
        return descriptionIn<VIDEOINFOHEADER>(type);
    }
    return IsEqualGUID(type.formattype, FORMAT_VideoInfo2) ? descriptionIn<VIDEOINFOHEADER2>(type)
                                                           : Description();
}

// A negative height says that the first row comes first, and has a meaning for bitmaps only.
qint32 strideOf(const BITMAPINFOHEADER& bitmap, PixelFormat format)
{
    const bool isBitmap = format == PixelFormat::Bgr || format == PixelFormat::Bgrx;
    if (!isBitmap || bitmap.biHeight >= 0) {
        return 0;
    }
    const int bytesPerPixel = format == PixelFormat::Bgr ? 3 : 4;
    return (bitmap.biWidth * bytesPerPixel + 3) & ~3;
}

} // namespace

MediaFormat DirectShowFormat::of(const AM_MEDIA_TYPE& type)
{
    const Description description = descriptionOf(type);
    if (!IsEqualGUID(type.majortype, MEDIATYPE_Video) || !description.bitmap) {
        return {};
    }
    const BITMAPINFOHEADER& bitmap = *description.bitmap;
    const QSize size =
        MediaFormat::sizeOf(bitmap.biWidth, std::abs(static_cast<qint64>(bitmap.biHeight)));
    if (size.isEmpty()) {
        return {};
    }
    const PixelFormat format = MediaFormat::pixelFormatOf(type.subtype);
    return MediaFormat::of({format, YuvColor::Bt601, size}, rateOf(*description.interval),
                           strideOf(bitmap, format));
}

void DirectShowFormat::setRate(MediaType& type, const FrameRate& rate)
{
    const Description description = descriptionOf(type.get());
    if (description.interval && rate.numerator > 0) {
        *description.interval = TicksPerSecond * rate.denominator / rate.numerator;
    }
}

FrameRate DirectShowFormat::rateOf(LONGLONG interval)
{
    return interval > 0 ? FrameRate{TicksPerSecond, interval} : FrameRate();
}

} // namespace Platform
