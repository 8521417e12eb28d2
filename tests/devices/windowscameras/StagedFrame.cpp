// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/windowscameras/StagedFrame.h"

#include "tests/support/CameraPattern.h"

#include <QtEndian>

#include <windows.h>
// Must follow windows.h.
#include <d3d9types.h>

namespace TestSupport {

namespace {

constexpr int UnknownBytes = 5000; // of a frame that nobody can show

bool patternFormat(const QByteArray& format, CameraPattern::PixelFormat& result)
{
    if (format == "RGB32") {
        result = CameraPattern::Bgrx;
        return true;
    }
    if (format == "RGB24") {
        result = CameraPattern::Bgr;
        return true;
    }
    return CameraPattern::pixelFormatFromName(QString::fromLatin1(format), result);
}

QByteArray turned(const QByteArray& rows, int stride)
{
    QByteArray result;
    for (int start = rows.size() - stride; start >= 0; start -= stride) {
        result += rows.mid(start, stride);
    }
    return result;
}

// The number of a bitmap's format, or a code of four letters.
unsigned long numberOf(const QByteArray& format)
{
    if (format == "RGB32") {
        return D3DFMT_X8R8G8B8;
    }
    return format == "RGB24" ? D3DFMT_R8G8B8 : qFromLittleEndian<quint32>(format.constData());
}

} // namespace

GUID subtypeOf(const QByteArray& format)
{
    return {numberOf(format), 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xaa, 0x00, 0x38, 0x9b, 0x71}};
}

QByteArray frameOf(const StagedMode& mode, int number)
{
    CameraPattern::PixelFormat format{};
    if (!patternFormat(mode.format, format)) {
        return QByteArray(UnknownBytes, 'x');
    }
    const int unpadded = CameraPattern(format, mode.size, 0).stride();
    const int stride = mode.stride == 0 ? unpadded : qAbs(mode.stride);
    CameraPattern pattern(format, mode.size, stride - unpadded);
    if (mode.color == 0) {
        pattern.setQuadrants();
    } else {
        pattern.setColor(mode.color);
    }
    const QByteArray bytes = pattern.frame(number);
    return mode.stride < 0 ? turned(bytes, stride) : bytes;
}

} // namespace TestSupport
