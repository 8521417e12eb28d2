// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QtGlobal>
#include <array>
#include <cstddef>

namespace Platform {

// How the bytes of a picture are laid out. The four-byte kinds are named in memory order.
enum class PixelLayout { None, Yuy2, Uyvy, Nv12, I420, Bgrx, Rgbx, Xrgb, Xbgr, Rgb, Bgr, Mjpg };

// What the numbers of a YUV picture mean.
enum class YuvColor { Bt601, Bt601Full, Bt709, Bt709Full };

// What a camera agreed to send.
struct PixelFormat
{
    PixelLayout layout = PixelLayout::None;
    YuvColor color = YuvColor::Bt601;
    QSize size;
};

// How a picture lies in its buffer: mirrored around its vertical axis first where it is flipped,
// then turned counter-clockwise.
struct FrameOrientation
{
    int quarterTurns = 0; // 0 to 3
    bool isFlipped = false;
};

// A picture in memory that belongs to somebody else. Planar layouts may lie in one plane, one
// behind the other, or in a plane each.
struct FrameView
{
    struct Plane
    {
        const uchar* data = nullptr;
        std::size_t size = 0; // bytes that may be read
        int stride = 0;       // 0: rows without padding
    };

    std::array<Plane, 3> planes;
    int planeCount = 0;
};

} // namespace Platform
