// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/FramePool.h"
#include "platform/devices/camera/PixelFormat.h"

#include <QImage>
#include <vector>

namespace Platform {

// Makes what a camera sends into what a self-view shows: upright, mirrored, no larger than wished,
// its aspect kept. Scales before it converts. One thread at a time.
class FrameConverter
{
public:
    // Null where the picture can't be read: too short, broken, or of an absurd size.
    QImage convert(const PixelFormat& format, const FrameView& view,
                   const FrameOrientation& orientation, const QSize& bound);

    // The size of the result: never larger than the source. An empty bound doesn't limit.
    static QSize fittedSize(const QSize& source, const QSize& bound);

private:
    using Bytes = std::vector<uchar>;
    struct Source;

    bool scalePacked422(const Source& source, const QSize& size);
    bool scaleNv12(const Source& source, const QSize& size);
    bool scaleI420(const Source& source, const QSize& size);
    bool scaleRgb(const Source& source, const QSize& size);
    bool scaleMjpg(const Source& source, const QSize& size);
    void scaleRows(const Source& source, int rowBytes, int rows);
    QImage oriented(const QSize& size, const FrameOrientation& orientation);

    FramePool m_pool;
    Bytes m_rows;    // the source at its full width and the wished height
    Bytes m_full[3]; // planes at the source's width
    Bytes m_small[3];
    Bytes m_argb;
    Bytes m_turned;
};

} // namespace Platform
