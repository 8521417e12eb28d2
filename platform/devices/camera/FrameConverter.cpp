// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"

#include <algorithm>
#include <libyuv.h>

namespace Platform {

namespace {

constexpr int MaxEdge = 8192;          // no camera sends more; a larger size is a broken one
constexpr int MaxStride = 8 * MaxEdge; // twice the longest row, in bytes

int halfUp(int value)
{
    return (value + 1) / 2;
}

uchar* sized(std::vector<uchar>& bytes, int width, int height)
{
    bytes.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    return bytes.data();
}

bool isReasonable(const QSize& size)
{
    return !size.isEmpty() && size.width() <= MaxEdge && size.height() <= MaxEdge;
}

// libyuv multiplies strides and rows as 32-bit numbers.
bool hasReasonableStrides(const FrameView& view)
{
    return std::all_of(view.planes.begin(), view.planes.end(), [](const FrameView::Plane& plane) {
        return plane.stride >= 0 && plane.stride <= MaxStride;
    });
}

const libyuv::YuvConstants* constantsOf(YuvColor color)
{
    switch (color) {
    case YuvColor::Bt601:
        return &libyuv::kYuvI601Constants;
    case YuvColor::Bt601Full:
        return &libyuv::kYuvJPEGConstants;
    case YuvColor::Bt709:
        return &libyuv::kYuvH709Constants;
    case YuvColor::Bt709Full:
        return &libyuv::kYuvF709Constants;
    }
    return &libyuv::kYuvI601Constants;
}

int rgbBytes(PixelFormat pixelFormat)
{
    return pixelFormat == PixelFormat::Rgb || pixelFormat == PixelFormat::Bgr ? 3 : 4;
}

// The plane's stride, or 0 if the plane is too short for all rows.
int strideOf(const FrameView::Plane& plane, int rowBytes, int rows)
{
    const int stride = plane.stride == 0 ? rowBytes : plane.stride;
    const std::size_t needed =
        static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows - 1) +
        static_cast<std::size_t>(rowBytes);
    return plane.data && stride >= rowBytes && plane.size >= needed ? stride : 0;
}

// The plane that follows this one in the same memory.
FrameView::Plane planeBehind(const FrameView::Plane& plane, int stride, int rows, int nextStride)
{
    const std::size_t bytes = static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows);
    if (plane.size < bytes) {
        return {};
    }
    return {plane.data + bytes, plane.size - bytes, nextStride};
}

// Planar formats: an entry for each plane, also if all lie in one.
FrameView separated(const FrameView& view, const FrameFormat& format)
{
    FrameView result = view;
    if (view.planeCount != 1) {
        return result;
    }
    const int height = format.size.height();
    FrameView::Plane& luma = result.planes[0];
    if (luma.stride == 0) {
        luma.stride = format.size.width();
    }
    if (format.pixelFormat == PixelFormat::Nv12) {
        result.planes[1] = planeBehind(luma, luma.stride, height, (luma.stride + 1) & ~1);
    } else {
        const int stride = halfUp(luma.stride);
        result.planes[1] = planeBehind(luma, luma.stride, height, stride);
        result.planes[2] = planeBehind(result.planes[1], stride, halfUp(height), stride);
    }
    return result;
}

} // namespace

struct FrameConverter::Source
{
    const FrameFormat& format;
    const FrameView& view;

    int width() const { return format.size.width(); }
    int height() const { return format.size.height(); }
};

QSize FrameConverter::fittedSize(const QSize& source, const QSize& bound)
{
    if (bound.isEmpty()) {
        return source;
    }
    const double factor = std::min(
        {1.0, double(bound.width()) / source.width(), double(bound.height()) / source.height()});
    return QSize(qRound(source.width() * factor), qRound(source.height() * factor))
        .boundedTo(bound)
        .expandedTo(QSize(1, 1));
}

QImage FrameConverter::convert(const FrameFormat& format, const FrameView& view,
                               const FrameOrientation& orientation, const QSize& bound)
{
    m_pixelFormat = format.pixelFormat;
    QImage result = tryToConvert(format, view, orientation, bound);
    m_unreadable = result.isNull() ? m_unreadable + 1 : 0;
    return result;
}

QString FrameConverter::problem() const
{
    return m_pixelFormat == PixelFormat::Mjpg
               ? m_jpeg.problem()
               : QStringLiteral("their memory is too short or can't be mapped");
}

QImage FrameConverter::tryToConvert(const FrameFormat& format, const FrameView& view,
                                    const FrameOrientation& orientation, const QSize& bound)
{
    FrameFormat actual = format;
    if (format.pixelFormat == PixelFormat::Mjpg) {
        const FrameView::Plane& plane = view.planes[0];
        // The JPEG is right; the agreed size may not be.
        actual.size = plane.data ? m_jpeg.open(plane.data, plane.size) : QSize();
    }
    if (!isReasonable(actual.size) || view.planeCount < 1 || view.planeCount > 3 ||
        !hasReasonableStrides(view)) {
        return {};
    }
    const bool isSideways = orientation.quarterTurns % 2 != 0;
    const QSize size = fittedSize(actual.size, isSideways ? bound.transposed() : bound);
    const Source source{actual, view};
    bool isScaled = false;
    switch (actual.pixelFormat) {
    case PixelFormat::None:
        break;
    case PixelFormat::Yuy2:
    case PixelFormat::Uyvy:
        isScaled = scalePacked422(source, size);
        break;
    case PixelFormat::Nv12:
        isScaled = scaleNv12(source, size);
        break;
    case PixelFormat::I420:
        isScaled = scaleI420(source, size);
        break;
    case PixelFormat::Mjpg:
        isScaled = scaleJpeg(size);
        break;
    case PixelFormat::Bgrx:
    case PixelFormat::Rgbx:
    case PixelFormat::Xrgb:
    case PixelFormat::Xbgr:
    case PixelFormat::Rgb:
    case PixelFormat::Bgr:
        isScaled = scaleRgb(source, size);
        break;
    }
    return isScaled ? oriented(size, orientation) : QImage();
}

// A packed format can't be scaled horizontally before it is unpacked. Vertically it can, and then
// there is less to unpack.
void FrameConverter::scaleRows(const Source& source, int rowBytes, int rows)
{
    const FrameView::Plane& plane = source.view.planes[0];
    libyuv::ScalePlane(plane.data, strideOf(plane, rowBytes, source.height()), rowBytes,
                       source.height(), sized(m_rows, rowBytes, rows), rowBytes, rowBytes, rows,
                       libyuv::kFilterBox);
}

bool FrameConverter::scalePacked422(const Source& source, const QSize& size)
{
    const int width = source.width();
    const int halfWidth = halfUp(width);
    const int rowBytes = halfWidth * 4;
    const int rows = size.height();
    if (strideOf(source.view.planes[0], rowBytes, source.height()) == 0) {
        return false;
    }
    scaleRows(source, rowBytes, rows);
    uchar* const y = sized(m_full[0], width, rows);
    uchar* const u = sized(m_full[1], halfWidth, rows);
    uchar* const v = sized(m_full[2], halfWidth, rows);
    const auto unpack =
        source.format.pixelFormat == PixelFormat::Yuy2 ? libyuv::YUY2ToI422 : libyuv::UYVYToI422;
    unpack(m_rows.data(), rowBytes, y, width, u, halfWidth, v, halfWidth, width, rows);

    const int smallWidth = size.width();
    const int smallHalf = halfUp(smallWidth);
    uchar* const smallY = sized(m_small[0], smallWidth, rows);
    uchar* const smallU = sized(m_small[1], smallHalf, rows);
    uchar* const smallV = sized(m_small[2], smallHalf, rows);
    libyuv::ScalePlane(y, width, width, rows, smallY, smallWidth, smallWidth, rows,
                       libyuv::kFilterBox);
    libyuv::ScalePlane(u, halfWidth, halfWidth, rows, smallU, smallHalf, smallHalf, rows,
                       libyuv::kFilterBox);
    libyuv::ScalePlane(v, halfWidth, halfWidth, rows, smallV, smallHalf, smallHalf, rows,
                       libyuv::kFilterBox);
    return libyuv::I422ToARGBMatrix(smallY, smallWidth, smallU, smallHalf, smallV, smallHalf,
                                    sized(m_argb, smallWidth * 4, rows), smallWidth * 4,
                                    constantsOf(source.format.color), smallWidth, rows) == 0;
}

bool FrameConverter::scaleNv12(const Source& source, const QSize& size)
{
    const FrameView view = separated(source.view, source.format);
    const int yStride = strideOf(view.planes[0], source.width(), source.height());
    const int uvStride =
        strideOf(view.planes[1], halfUp(source.width()) * 2, halfUp(source.height()));
    if (yStride == 0 || uvStride == 0) {
        return false;
    }
    const int width = size.width();
    const int height = size.height();
    const int uvWidth = halfUp(width) * 2;
    uchar* const y = sized(m_small[0], width, height);
    uchar* const uv = sized(m_small[1], uvWidth, halfUp(height));
    libyuv::NV12Scale(view.planes[0].data, yStride, view.planes[1].data, uvStride, source.width(),
                      source.height(), y, width, uv, uvWidth, width, height, libyuv::kFilterBox);
    return libyuv::NV12ToARGBMatrix(y, width, uv, uvWidth, sized(m_argb, width * 4, height),
                                    width * 4, constantsOf(source.format.color), width,
                                    height) == 0;
}

bool FrameConverter::scaleI420(const Source& source, const QSize& size)
{
    const FrameView view = separated(source.view, source.format);
    const int halfWidth = halfUp(source.width());
    const int halfHeight = halfUp(source.height());
    const int yStride = strideOf(view.planes[0], source.width(), source.height());
    const int uStride = strideOf(view.planes[1], halfWidth, halfHeight);
    const int vStride = strideOf(view.planes[2], halfWidth, halfHeight);
    if (yStride == 0 || uStride == 0 || vStride == 0) {
        return false;
    }
    const int width = size.width();
    const int height = size.height();
    const int smallHalf = halfUp(width);
    uchar* const y = sized(m_small[0], width, height);
    uchar* const u = sized(m_small[1], smallHalf, halfUp(height));
    uchar* const v = sized(m_small[2], smallHalf, halfUp(height));
    libyuv::I420Scale(view.planes[0].data, yStride, view.planes[1].data, uStride,
                      view.planes[2].data, vStride, source.width(), source.height(), y, width, u,
                      smallHalf, v, smallHalf, width, height, libyuv::kFilterBox);
    return libyuv::I420ToARGBMatrix(y, width, u, smallHalf, v, smallHalf,
                                    sized(m_argb, width * 4, height), width * 4,
                                    constantsOf(source.format.color), width, height) == 0;
}

bool FrameConverter::scaleRgb(const Source& source, const QSize& size)
{
    const PixelFormat pixelFormat = source.format.pixelFormat;
    const int width = source.width();
    const int rowBytes = width * rgbBytes(pixelFormat);
    const int rows = size.height();
    if (strideOf(source.view.planes[0], rowBytes, source.height()) == 0) {
        return false;
    }
    scaleRows(source, rowBytes, rows);
    // libyuv names formats by the 32-bit word, not in memory order: its ARGB is our BGRX.
    uchar* const full = sized(m_full[0], width * 4, rows);
    const auto unpack = [&](auto function) {
        function(m_rows.data(), rowBytes, full, width * 4, width, rows);
    };
    if (pixelFormat == PixelFormat::Bgrx) {
        unpack(libyuv::ARGBCopy);
    } else if (pixelFormat == PixelFormat::Rgbx) {
        unpack(libyuv::ABGRToARGB);
    } else if (pixelFormat == PixelFormat::Xrgb) {
        unpack(libyuv::BGRAToARGB);
    } else if (pixelFormat == PixelFormat::Xbgr) {
        unpack(libyuv::RGBAToARGB);
    } else if (pixelFormat == PixelFormat::Rgb) {
        unpack(libyuv::RAWToARGB);
    } else {
        unpack(libyuv::RGB24ToARGB);
    }
    return libyuv::ARGBScale(full, width * 4, width, rows, sized(m_argb, size.width() * 4, rows),
                             size.width() * 4, size.width(), rows, libyuv::kFilterBox) == 0;
}

bool FrameConverter::scaleJpeg(const QSize& size)
{
    const QSize full = m_jpeg.decode(size, m_full[0]);
    return !full.isEmpty() &&
           libyuv::ARGBScale(m_full[0].data(), full.width() * 4, full.width(), full.height(),
                             sized(m_argb, size.width() * 4, size.height()), size.width() * 4,
                             size.width(), size.height(), libyuv::kFilterBox) == 0;
}

QImage FrameConverter::oriented(const QSize& size, const FrameOrientation& orientation)
{
    const int width = size.width();
    const int height = size.height();
    const bool isSideways = orientation.quarterTurns % 2 != 0;
    QImage result = m_pool.take(isSideways ? size.transposed() : size);
    static constexpr libyuv::RotationMode Turns[] = {libyuv::kRotate0, libyuv::kRotate90,
                                                     libyuv::kRotate180, libyuv::kRotate270};
    const libyuv::RotationMode turn = Turns[orientation.quarterTurns];
    if (orientation.isFlipped) { // already mirrored, as a self-view must be
        libyuv::ARGBRotate(m_argb.data(), width * 4, result.bits(), result.bytesPerLine(), width,
                           height, turn);
        return result;
    }
    const uchar* upright = m_argb.data();
    if (turn != libyuv::kRotate0) {
        uchar* const turned = sized(m_turned, result.width() * 4, result.height());
        libyuv::ARGBRotate(upright, width * 4, turned, result.width() * 4, width, height, turn);
        upright = turned;
    }
    libyuv::ARGBMirror(upright, result.width() * 4, result.bits(), result.bytesPerLine(),
                       result.width(), result.height());
    return result;
}

} // namespace Platform
