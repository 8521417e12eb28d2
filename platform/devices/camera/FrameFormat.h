// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QtGlobal>
#include <array>
#include <cstddef>

namespace Platform {

// Of a frame, in pixels. No camera sends a longer one: a larger size is a broken one.
constexpr int MaxFrameEdge = 8192;

// How a pixel is stored. The formats of four bytes are named in memory order.
enum class PixelFormat { None, Yuy2, Uyvy, Nv12, I420, Bgrx, Rgbx, Xrgb, Xbgr, Rgb, Bgr, Mjpg };

// What the numbers of a YUV frame mean.
enum class YuvColor { Bt601, Bt601Full, Bt709, Bt709Full };

// What a camera agreed to send.
struct FrameFormat
{
    PixelFormat pixelFormat = PixelFormat::None;
    YuvColor color = YuvColor::Bt601;
    QSize size;
};

// How a frame is stored in its buffer: if it is flipped, first mirrored left to right, then turned
// counterclockwise.
struct FrameOrientation
{
    int quarterTurns = 0; // 0 to 3
    bool isFlipped = false;
};

// A frame in memory that belongs to somebody else. The planes of a planar format are one entry
// each, or follow each other in a single one.
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
