// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"

#include <algorithm>
#include <libyuv.h>

namespace Platform {

namespace {

constexpr int MaxStride = 8 * MaxFrameEdge; // twice the longest row, in bytes
constexpr int HalfOfBoth = 128;             // of 256

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
    return !size.isEmpty() && size.width() <= MaxFrameEdge && size.height() <= MaxFrameEdge;
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

// From twice as many rows on, the mean of two neighbouring rows looks like one of them, and takes
// twice the memory reads.
libyuv::FilterMode filterFor(int sourceRows, int rows)
{
    return sourceRows >= 2 * rows ? libyuv::kFilterLinear : libyuv::kFilterBilinear;
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

bool FrameConverter::scalePacked422(const Source& source, const QSize& size)
{
    if (strideOf(source.view.planes[0], halfUp(source.width()) * 4, source.height()) == 0) {
        return false;
    }
    const bool isMuchSmaller =
        halfUp(source.width()) >= size.width() && source.height() >= 2 * size.height();
    return isMuchSmaller ? thinPacked422(source, size) : unpackAndScale422(source, size);
}

// Two neighbours share four bytes, which are picked as one pixel of a format of four bytes. The
// mean of the two is a pixel of the result.
bool FrameConverter::thinPacked422(const Source& source, const QSize& size)
{
    const FrameView::Plane& plane = source.view.planes[0];
    const int halfWidth = halfUp(source.width());
    const int width = size.width();
    const int rows = size.height();
    uchar* const picked = sized(m_rows, width * 4, rows);
    libyuv::ARGBScale(plane.data, strideOf(plane, halfWidth * 4, source.height()), halfWidth,
                      source.height(), picked, width * 4, width, rows, libyuv::kFilterNone);
    uchar* const pairs = sized(m_full[0], 2 * width, rows);
    uchar* const u = sized(m_small[1], width, rows);
    uchar* const v = sized(m_small[2], width, rows);
    const auto unpack =
        source.format.pixelFormat == PixelFormat::Yuy2 ? libyuv::YUY2ToI422 : libyuv::UYVYToI422;
    unpack(picked, width * 4, pairs, 2 * width, u, width, v, width, 2 * width, rows);
    uchar* const left = sized(m_full[1], width, rows);
    uchar* const right = sized(m_full[2], width, rows);
    uchar* const y = sized(m_small[0], width, rows);
    libyuv::SplitUVPlane(pairs, 2 * width, left, width, right, width, width, rows);
    libyuv::InterpolatePlane(left, width, right, width, y, width, width, rows, HalfOfBoth);
    return libyuv::I444ToARGBMatrix(y, width, u, width, v, width, sized(m_argb, width * 4, rows),
                                    width * 4, constantsOf(source.format.color), width, rows) == 0;
}

bool FrameConverter::unpackAndScale422(const Source& source, const QSize& size)
{
    const int width = source.width();
    const int halfWidth = halfUp(width);
    const int rows = size.height();
    scaleRows(source, halfWidth * 4, rows);
    uchar* const y = sized(m_full[0], width, rows);
    uchar* const u = sized(m_full[1], halfWidth, rows);
    uchar* const v = sized(m_full[2], halfWidth, rows);
    const auto unpack =
        source.format.pixelFormat == PixelFormat::Yuy2 ? libyuv::YUY2ToI422 : libyuv::UYVYToI422;
    unpack(m_rows.data(), halfWidth * 4, y, width, u, halfWidth, v, halfWidth, width, rows);

    const int smallWidth = size.width();
    const int smallHalf = halfUp(smallWidth);
    uchar* const smallY = sized(m_small[0], smallWidth, rows);
    uchar* const smallU = sized(m_small[1], smallHalf, rows);
    uchar* const smallV = sized(m_small[2], smallHalf, rows);
    libyuv::ScalePlane(y, width, width, rows, smallY, smallWidth, smallWidth, rows,
                       libyuv::kFilterBilinear);
    libyuv::ScalePlane(u, halfWidth, halfWidth, rows, smallU, smallHalf, smallHalf, rows,
                       libyuv::kFilterNone);
    libyuv::ScalePlane(v, halfWidth, halfWidth, rows, smallV, smallHalf, smallHalf, rows,
                       libyuv::kFilterNone);
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
    libyuv::ScalePlane(view.planes[0].data, yStride, source.width(), source.height(), y, width,
                       width, height, filterFor(source.height(), height));
    libyuv::UVScale(view.planes[1].data, uvStride, halfUp(source.width()), halfUp(source.height()),
                    uv, uvWidth, halfUp(width), halfUp(height), libyuv::kFilterNone);
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
    libyuv::ScalePlane(view.planes[0].data, yStride, source.width(), source.height(), y, width,
                       width, height, filterFor(source.height(), height));
    libyuv::ScalePlane(view.planes[1].data, uStride, halfWidth, halfHeight, u, smallHalf, smallHalf,
                       halfUp(height), libyuv::kFilterNone);
    libyuv::ScalePlane(view.planes[2].data, vStride, halfWidth, halfHeight, v, smallHalf, smallHalf,
                       halfUp(height), libyuv::kFilterNone);
    return libyuv::I420ToARGBMatrix(y, width, u, smallHalf, v, smallHalf,
                                    sized(m_argb, width * 4, height), width * 4,
                                    constantsOf(source.format.color), width, height) == 0;
}

bool FrameConverter::scaleRgb(const Source& source, const QSize& size)
{
    const FrameView::Plane& plane = source.view.planes[0];
    const int bytes = rgbBytes(source.format.pixelFormat);
    const int stride = strideOf(plane, source.width() * bytes, source.height());
    if (stride == 0) {
        return false;
    }
    return bytes == 4 ? scaleRgb32(source, stride, size) : scaleRgb24(source, size);
}

// Scaling doesn't mind the order of the four bytes.
bool FrameConverter::scaleRgb32(const Source& source, int stride, const QSize& size)
{
    const int width = size.width();
    const int height = size.height();
    uchar* const small = sized(m_small[0], width * 4, height);
    libyuv::ARGBScale(source.view.planes[0].data, stride, source.width(), source.height(), small,
                      width * 4, width, height, filterFor(source.height(), height));
    const auto unpack = [&](auto function) {
        return function(small, width * 4, sized(m_argb, width * 4, height), width * 4, width,
                        height) == 0;
    };
    // libyuv names formats by the 32-bit word, not in memory order: its ARGB is our BGRX.
    switch (source.format.pixelFormat) {
    case PixelFormat::Rgbx:
        return unpack(libyuv::ABGRToARGB);
    case PixelFormat::Xrgb:
        return unpack(libyuv::BGRAToARGB);
    case PixelFormat::Xbgr:
        return unpack(libyuv::RGBAToARGB);
    default:
        return unpack(libyuv::ARGBCopy);
    }
}

// A format that can't be scaled horizontally before it is unpacked. Vertically it can, and then
// there is less to unpack.
bool FrameConverter::scaleRgb24(const Source& source, const QSize& size)
{
    const int width = source.width();
    const int rows = size.height();
    scaleRows(source, width * 3, rows);
    uchar* const full = sized(m_full[0], width * 4, rows);
    const auto unpack =
        source.format.pixelFormat == PixelFormat::Rgb ? libyuv::RAWToARGB : libyuv::RGB24ToARGB;
    unpack(m_rows.data(), width * 3, full, width * 4, width, rows);
    return libyuv::ARGBScale(full, width * 4, width, rows, sized(m_argb, size.width() * 4, rows),
                             size.width() * 4, size.width(), rows, libyuv::kFilterBilinear) == 0;
}

void FrameConverter::scaleRows(const Source& source, int rowBytes, int rows)
{
    const FrameView::Plane& plane = source.view.planes[0];
    const bool isMuchSmaller = source.height() >= 2 * rows;
    libyuv::ScalePlane(plane.data, strideOf(plane, rowBytes, source.height()), rowBytes,
                       source.height(), sized(m_rows, rowBytes, rows), rowBytes, rowBytes, rows,
                       isMuchSmaller ? libyuv::kFilterNone : libyuv::kFilterBilinear);
}

bool FrameConverter::scaleJpeg(const QSize& size)
{
    const QSize full = m_jpeg.decode(size, m_full[0]);
    return !full.isEmpty() &&
           libyuv::ARGBScale(m_full[0].data(), full.width() * 4, full.width(), full.height(),
                             sized(m_argb, size.width() * 4, size.height()), size.width() * 4,
                             size.width(), size.height(), libyuv::kFilterBilinear) == 0;
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
