// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/directshow/StagedType.h"

#include "tests/devices/windowscameras/StagedFrame.h"

#include <cstdlib>
#include <utility>

// Must follow windows.h.
#include <amvideo.h>
#include <objbase.h>
#include <uuids.h>

using Platform::MediaType;

namespace TestSupport {

namespace {

constexpr LONGLONG TicksPerSecond = 10'000'000;
constexpr int MaxBytesPerPixel = 4;

bool isBitmap(const StagedMode& mode)
{
    return mode.format == "RGB32" || mode.format == "RGB24";
}

GUID typeNumberOf(const StagedMode& mode)
{
    if (mode.format == "RGB32") {
        return MEDIASUBTYPE_RGB32;
    }
    return mode.format == "RGB24" ? MEDIASUBTYPE_RGB24 : subtypeOf(mode.format);
}

} // namespace

MediaType StagedType::of(const StagedMode& mode)
{
    VIDEOINFOHEADER header{};
    header.AvgTimePerFrame = intervalOf(mode.rateNumerator, mode.rateDenominator);
    header.bmiHeader.biSize = sizeof header.bmiHeader;
    header.bmiHeader.biWidth = mode.size.width();
    const bool isTopDown = isBitmap(mode) && mode.stride > 0;
    header.bmiHeader.biHeight = isTopDown ? -mode.size.height() : mode.size.height();
    header.bmiHeader.biPlanes = 1;
    AM_MEDIA_TYPE type{};
    type.majortype = MEDIATYPE_Video;
    type.subtype = typeNumberOf(mode);
    type.bFixedSizeSamples = TRUE;
    type.lSampleSize = static_cast<ULONG>(maxBytes(mode));
    type.formattype = FORMAT_VideoInfo;
    type.cbFormat = sizeof header;
    type.pbFormat = reinterpret_cast<BYTE*>(&header);
    return MediaType(type);
}

bool StagedType::find(const StagedCamera& camera, const AM_MEDIA_TYPE& type, StagedMode& mode)
{
    if (!IsEqualGUID(type.formattype, FORMAT_VideoInfo) || !type.pbFormat) {
        return false;
    }
    const auto& header = *reinterpret_cast<const VIDEOINFOHEADER*>(type.pbFormat);
    for (const StagedMode& one : camera.modes) {
        const QSize size(header.bmiHeader.biWidth, std::abs(header.bmiHeader.biHeight));
        if (one.size == size && IsEqualGUID(type.subtype, typeNumberOf(one))) {
            mode = one;
            mode.stride = isBitmap(one) ? one.stride : 0;
            mode.rateNumerator = static_cast<int>(TicksPerSecond);
            mode.rateDenominator = static_cast<int>(header.AvgTimePerFrame);
            return true;
        }
    }
    return false;
}

LONGLONG StagedType::intervalOf(int numerator, int denominator)
{
    return TicksPerSecond * denominator / qMax(numerator, 1);
}

int StagedType::maxBytes(const StagedMode& mode)
{
    constexpr int Reserve = 100000; // of small compressed frames
    const qint64 pixels = qint64(mode.size.width()) * mode.size.height();
    constexpr qint64 MaxPixels = 10'000'000; // absurd sizes are only offered
    return static_cast<int>(qMin(pixels, MaxPixels)) * MaxBytesPerPixel + Reserve;
}

StagedTypeList::StagedTypeList(std::shared_ptr<StagedCamera> camera, std::size_t next)
    : m_camera(std::move(camera)), m_next(next)
{
}

HRESULT StagedTypeList::Next(ULONG count, AM_MEDIA_TYPE** types, ULONG* fetched)
{
    ULONG given = 0;
    for (; given < count && m_next < m_camera->modes.size(); ++given) {
        auto* type = static_cast<AM_MEDIA_TYPE*>(CoTaskMemAlloc(sizeof(AM_MEDIA_TYPE)));
        *type = StagedType::of(m_camera->modes[m_next++]).release();
        types[given] = type;
    }
    if (fetched) {
        *fetched = given;
    }
    return given == count ? S_OK : S_FALSE;
}

HRESULT StagedTypeList::Skip(ULONG count)
{
    m_next += count;
    return m_next <= m_camera->modes.size() ? S_OK : S_FALSE;
}

HRESULT StagedTypeList::Reset()
{
    m_next = 0;
    return S_OK;
}

HRESULT StagedTypeList::Clone(IEnumMediaTypes** copy)
{
    *copy = new StagedTypeList(m_camera, m_next);
    return S_OK;
}

} // namespace TestSupport
