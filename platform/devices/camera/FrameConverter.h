// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/FrameFormat.h"
#include "platform/devices/camera/FramePool.h"
#include "platform/devices/camera/JpegReader.h"

#include <QImage>
#include <vector>

namespace Platform {

// Converts a camera's frame for a self-view: upright, mirrored, within the bound, aspect kept.
// Scales first, so that there is less to convert. One thread at a time.
class FrameConverter
{
public:
    // Null if the frame can't be read: too short, broken, or of an absurd size.
    QImage convert(const FrameFormat& format, const FrameView& view,
                   const FrameOrientation& orientation, const QSize& bound);

    // True once, after so many unreadable frames in a row that it is no accident.
    bool hasGivenUp() const { return m_unreadable == MaxUnreadable; }
    QString problem() const; // of the last unreadable frame

    // The size of the result, never larger than the source. An empty bound is no bound.
    static QSize fittedSize(const QSize& source, const QSize& bound);

private:
    static constexpr int MaxUnreadable = 15; // a camera may start with a few
    using Bytes = std::vector<uchar>;
    struct Source;

    QImage tryToConvert(const FrameFormat& format, const FrameView& view,
                        const FrameOrientation& orientation, const QSize& bound);
    bool scalePacked422(const Source& source, const QSize& size);
    bool thinPacked422(const Source& source, const QSize& size);
    bool unpackAndScale422(const Source& source, const QSize& size);
    bool scaleNv12(const Source& source, const QSize& size);
    bool scaleI420(const Source& source, const QSize& size);
    bool scaleRgb(const Source& source, const QSize& size);
    bool scaleRgb32(const Source& source, int stride, const QSize& size);
    bool scaleRgb24(const Source& source, const QSize& size);
    bool scaleJpeg(const QSize& size);
    void scaleRows(const Source& source, int rowBytes, int rows);
    QImage oriented(const QSize& size, const FrameOrientation& orientation);

    FramePool m_pool;
    JpegReader m_jpeg;
    int m_unreadable = 0; // in a row
    PixelFormat m_pixelFormat = PixelFormat::None;
    Bytes m_rows;    // the full width of the source, the height of the result
    Bytes m_full[3]; // planes of the source's width
    Bytes m_small[3];
    Bytes m_argb;
    Bytes m_turned;
};

} // namespace Platform
