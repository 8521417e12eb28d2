// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/CameraPattern.h"

#include "tests/support/JpegEncoder.h"

#include <QImage>

namespace TestSupport {

namespace {

constexpr int BandShare = 16; // of the width
constexpr int BarShare = 8;
constexpr int TopShare = 8; // of the height
constexpr int StepShare = 32;
const QRgb Band = qRgb(0, 0, 255);
const QRgb Bar = qRgb(255, 255, 255);
const QRgb Red = qRgb(255, 0, 0);
const QRgb Green = qRgb(0, 255, 0);
const QRgb Zero = qRgb(0, 0, 0);

const char* const FormatNames[] = {"YUY2", "UYVY", "NV12", "I420", "RGB",   "BGR",
                                   "RGBx", "BGRx", "xRGB", "xBGR", "GRAY8", "MJPG"};

int halfUp(int value)
{
    return (value + 1) / 2;
}

char byte(double value)
{
    return static_cast<char>(static_cast<uchar>(qBound(0, qRound(value), 255)));
}

void append(QByteArray& bytes, std::initializer_list<char> more)
{
    bytes.append(more.begin(), static_cast<int>(more.size()));
}

} // namespace

CameraPattern::CameraPattern(PixelFormat pixelFormat, const QSize& size, int rowPadding)
    : m_pixelFormat(pixelFormat), m_rowPadding(rowPadding)
{
    setSize(size);
}

bool CameraPattern::pixelFormatFromName(const QString& name, PixelFormat& pixelFormat)
{
    for (int i = 0; i <= Mjpg; ++i) {
        if (name == QLatin1String(FormatNames[i])) {
            pixelFormat = static_cast<PixelFormat>(i);
            return true;
        }
    }
    return false;
}

int CameraPattern::maxBytes() const
{
    return m_pixelFormat == Mjpg ? m_size.width() * m_size.height() * 3 : frame(0).size();
}

void CameraPattern::setFormat(PixelFormat pixelFormat, const QSize& size)
{
    m_pixelFormat = pixelFormat;
    setSize(size);
}

void CameraPattern::setSize(const QSize& size)
{
    m_size = size;
    const int width = size.width();
    switch (m_pixelFormat) {
    case Yuy2:
    case Uyvy:
        m_stride = halfUp(width) * 4;
        break;
    case Nv12:
    case I420:
        m_stride = halfUp(width) * 2; // so that a chroma row is half of it
        break;
    case Gray8:
        m_stride = width;
        break;
    case Rgb:
    case Bgr:
        m_stride = width * 3;
        break;
    case Rgbx:
    case Bgrx:
    case Xrgb:
    case Xbgr:
        m_stride = width * 4;
        break;
    case Mjpg:
        m_stride = 0;
        return;
    }
    m_stride += m_rowPadding;
}

QByteArray CameraPattern::frame(int number) const
{
    if (m_pixelFormat == Mjpg) {
        return jpeg(number);
    }
    const int height = m_size.height();
    const int topHeight = topRows();
    const QByteArray top = row(number, true);
    const QByteArray rest = row(number, false);
    QByteArray result;
    for (int y = 0; y < height; ++y) {
        result += y < topHeight ? top : rest;
    }
    if (!isPlanar()) {
        return result;
    }
    for (const bool isV : {false, true}) {
        if (m_pixelFormat == Nv12 && isV) {
            break;
        }
        const QByteArray topChroma = chromaRow(number, true, isV);
        const QByteArray restChroma = chromaRow(number, false, isV);
        for (int y = 0; y < halfUp(height); ++y) {
            result += 2 * y < topHeight ? topChroma : restChroma;
        }
    }
    return result;
}

// BT.601, limited range
CameraPattern::Yuv CameraPattern::toYuv(QRgb color)
{
    const double r = qRed(color) / 255.0;
    const double g = qGreen(color) / 255.0;
    const double b = qBlue(color) / 255.0;
    const double y = 0.299 * r + 0.587 * g + 0.114 * b;
    return {static_cast<uchar>(byte(16.0 + 219.0 * y)),
            static_cast<uchar>(byte(128.0 + 224.0 * (b - y) / 1.772)),
            static_cast<uchar>(byte(128.0 + 224.0 * (r - y) / 1.402))};
}

int CameraPattern::topRows() const
{
    if (m_hasQuadrants) {
        return m_size.height() / 2;
    }
    return m_isNumbered ? m_size.height() / TopShare : 0;
}

QRgb CameraPattern::pixel(int x, bool isTop, int number) const
{
    const int width = m_size.width();
    if (m_hasQuadrants) {
        return quadrantPixel(x, isTop, number);
    }
    if (isTop && m_isNumbered) {
        const int block = x * NumberBits / width;
        return (number >> block) & 1 ? Bar : Zero;
    }
    if (m_isBlack) {
        return Zero;
    }
    if (x < width / BandShare) {
        return Band;
    }
    const int barWidth = width / BarShare;
    const int bar =
        width / BandShare + (number * width / StepShare) % (width - width / BandShare - barWidth);
    return x >= bar && x < bar + barWidth ? Bar : m_color.rgb();
}

QRgb CameraPattern::quadrantPixel(int x, bool isTop, int number) const
{
    const bool isLeft = x < m_size.width() / 2;
    if (isTop && x < m_size.width() / BandShare) {
        return number % 2 == 0 ? Zero : Bar;
    }
    return isTop ? (isLeft ? Red : Green) : (isLeft ? Band : Bar);
}

QByteArray CameraPattern::row(int number, bool isTop) const
{
    const int width = m_size.width();
    QByteArray result;
    result.reserve(m_stride);
    for (int x = 0; x < width; ++x) {
        const QRgb color = pixel(x, isTop, number);
        const char r = byte(qRed(color));
        const char g = byte(qGreen(color));
        const char b = byte(qBlue(color));
        const Yuv yuv = toYuv(color);
        const auto y = static_cast<char>(yuv.y);
        const auto chroma = static_cast<char>(x % 2 == 0 ? yuv.u : yuv.v);
        switch (m_pixelFormat) {
        case Yuy2:
            append(result, {y, chroma});
            break;
        case Uyvy:
            append(result, {chroma, y});
            break;
        case Nv12:
        case I420:
        case Gray8:
            result += y;
            break;
        case Rgb:
            append(result, {r, g, b});
            break;
        case Bgr:
            append(result, {b, g, r});
            break;
        case Rgbx:
            append(result, {r, g, b, '\0'});
            break;
        case Bgrx:
            append(result, {b, g, r, '\0'});
            break;
        case Xrgb:
            append(result, {'\0', r, g, b});
            break;
        case Xbgr:
            append(result, {'\0', b, g, r});
            break;
        case Mjpg:
            break;
        }
    }
    return result.leftJustified(m_stride, '\x55');
}

QByteArray CameraPattern::chromaRow(int number, bool isTop, bool isV) const
{
    QByteArray result;
    for (int x = 0; x < m_size.width(); x += 2) {
        const Yuv yuv = toYuv(pixel(x, isTop, number));
        if (m_pixelFormat == Nv12) {
            append(result, {static_cast<char>(yuv.u), static_cast<char>(yuv.v)});
        } else {
            result += static_cast<char>(isV ? yuv.v : yuv.u);
        }
    }
    return result.leftJustified(m_pixelFormat == Nv12 ? m_stride : m_stride / 2, '\x55');
}

QByteArray CameraPattern::jpeg(int number) const
{
    QImage image(m_size, QImage::Format_RGB32);
    const int topHeight = topRows();
    for (int y = 0; y < m_size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < m_size.width(); ++x) {
            line[x] = pixel(x, y < topHeight, number);
        }
    }
    return encodeJpeg(image, 90);
}

} // namespace TestSupport
