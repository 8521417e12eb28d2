// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameConverter.h"

#include <libyuv.h>

namespace Platform {

namespace {

constexpr int MaxEdge = 8192; // no camera's picture is larger; a broken size would be

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

int rgbBytes(PixelLayout layout)
{
    return layout == PixelLayout::Rgb || layout == PixelLayout::Bgr ? 3 : 4;
}

// The plane's stride where it holds all rows, otherwise 0.
int strideOf(const FrameView::Plane& plane, int rowBytes, int rows)
{
    const int stride = plane.stride == 0 ? rowBytes : plane.stride;
    const std::size_t needed =
        static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows - 1) +
        static_cast<std::size_t>(rowBytes);
    return plane.data != nullptr && stride >= rowBytes && plane.size >= needed ? stride : 0;
}

// The plane that follows the given one in the same memory.
FrameView::Plane planeBehind(const FrameView::Plane& plane, int stride, int rows, int nextStride)
{
    const std::size_t bytes = static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows);
    if (plane.size < bytes) {
        return {};
    }
    return {plane.data + bytes, plane.size - bytes, nextStride};
}

// Gives each plane of a planar layout its own entry, also where all lie in one.
FrameView separated(const FrameView& view, const PixelFormat& format)
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
    if (format.layout == PixelLayout::Nv12) {
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
    const PixelFormat& format;
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

QImage FrameConverter::convert(const PixelFormat& format, const FrameView& view,
                               const FrameOrientation& orientation, const QSize& bound)
{
    PixelFormat actual = format;
    if (format.layout == PixelLayout::Mjpg) {
        int width = 0;
        int height = 0;
        const FrameView::Plane& plane = view.planes[0];
        if (plane.data == nullptr ||
            libyuv::MJPGSize(plane.data, plane.size, &width, &height) != 0) {
            return {};
        }
        actual.size = QSize(width, height); // the picture knows better than the agreement
    }
    if (!isReasonable(actual.size) || view.planeCount < 1 || view.planeCount > 3) {
        return {};
    }
    const bool isSideways = orientation.quarterTurns % 2 != 0;
    const QSize size = fittedSize(actual.size, isSideways ? bound.transposed() : bound);
    const Source source{actual, view};
    bool isScaled = false;
    switch (actual.layout) {
    case PixelLayout::None:
        break;
    case PixelLayout::Yuy2:
    case PixelLayout::Uyvy:
        isScaled = scalePacked422(source, size);
        break;
    case PixelLayout::Nv12:
        isScaled = scaleNv12(source, size);
        break;
    case PixelLayout::I420:
        isScaled = scaleI420(source, size);
        break;
    case PixelLayout::Mjpg:
        isScaled = scaleMjpg(source, size);
        break;
    case PixelLayout::Bgrx:
    case PixelLayout::Rgbx:
    case PixelLayout::Xrgb:
    case PixelLayout::Xbgr:
    case PixelLayout::Rgb:
    case PixelLayout::Bgr:
        isScaled = scaleRgb(source, size);
        break;
    }
    return isScaled ? oriented(size, orientation) : QImage();
}

// Packed layouts can't be scaled sideways as they are, but each byte column can be scaled upright,
// which leaves little to unpack.
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
        source.format.layout == PixelLayout::Yuy2 ? libyuv::YUY2ToI422 : libyuv::UYVYToI422;
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
    const PixelLayout layout = source.format.layout;
    const int width = source.width();
    const int rowBytes = width * rgbBytes(layout);
    const int rows = size.height();
    if (strideOf(source.view.planes[0], rowBytes, source.height()) == 0) {
        return false;
    }
    scaleRows(source, rowBytes, rows);
    // libyuv names its layouts by the word, not by the memory: its ARGB is the B, G, R, X here.
    uchar* const full = sized(m_full[0], width * 4, rows);
    const auto unpack = [&](auto function) {
        function(m_rows.data(), rowBytes, full, width * 4, width, rows);
    };
    if (layout == PixelLayout::Bgrx) {
        unpack(libyuv::ARGBCopy);
    } else if (layout == PixelLayout::Rgbx) {
        unpack(libyuv::ABGRToARGB);
    } else if (layout == PixelLayout::Xrgb) {
        unpack(libyuv::BGRAToARGB);
    } else if (layout == PixelLayout::Xbgr) {
        unpack(libyuv::RGBAToARGB);
    } else if (layout == PixelLayout::Rgb) {
        unpack(libyuv::RAWToARGB);
    } else {
        unpack(libyuv::RGB24ToARGB);
    }
    return libyuv::ARGBScale(full, width * 4, width, rows, sized(m_argb, size.width() * 4, rows),
                             size.width() * 4, size.width(), rows, libyuv::kFilterBox) == 0;
}

bool FrameConverter::scaleMjpg(const Source& source, const QSize& size)
{
    const int width = source.width();
    const int height = source.height();
    const int halfWidth = halfUp(width);
    const FrameView::Plane& plane = source.view.planes[0];
    uchar* const y = sized(m_full[0], width, height);
    uchar* const u = sized(m_full[1], halfWidth, halfUp(height));
    uchar* const v = sized(m_full[2], halfWidth, halfUp(height));
    if (libyuv::MJPGToI420(plane.data, plane.size, y, width, u, halfWidth, v, halfWidth, width,
                           height, width, height) != 0) {
        return false;
    }
    PixelFormat format{PixelLayout::I420, YuvColor::Bt601Full, source.format.size};
    FrameView view;
    view.planeCount = 3;
    for (std::size_t i = 0; i < view.planes.size(); ++i) {
        view.planes[i] = {m_full[i].data(), m_full[i].size(), i == 0 ? width : halfWidth};
    }
    return scaleI420(Source{format, view}, size);
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
    if (orientation.isFlipped) { // undoing the flip would undo the mirror of the self-view
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
