// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraModes.h"
#include "platform/devices/camera/FrameFormat.h"

#include <windows.h>

namespace Platform {

// What a media type of Windows says of a camera's frames. Foreign numbers.
struct MediaFormat
{
    FrameFormat frame; // without a pixel format if it can't be shown
    FrameRate rate;
    int stride = 0; // bytes from one row to the next; 0 if the type doesn't tell
    bool isBottomUp = false;

    static PixelFormat pixelFormatOf(const GUID& subtype); // none if it can't be shown
    static QSize sizeOf(qint64 width, qint64 height);      // empty if it is absurd
    // A negative stride: the last row comes first. 0 is the usual one of the pixel format.
    static MediaFormat of(const FrameFormat& frame, const FrameRate& rate, qint32 stride);

    CameraMode mode() const { return {frame.pixelFormat, frame.size, rate}; }
    CameraModes::Offer offer() const; // of this mode alone
    // Of a frame with so many bytes. A stride that they don't suffice for is ignored.
    FrameView view(const uchar* data, std::size_t bytes) const;
    FrameOrientation orientation() const;
};

} // namespace Platform
