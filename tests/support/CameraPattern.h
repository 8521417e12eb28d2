// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>

namespace TestSupport {

// Makes the frames of a virtual camera: one color, a blue band at the left edge, a white bar that
// moves. Uses none of the conversions that are under test.
class CameraPattern
{
public:
    enum PixelFormat { Yuy2, Uyvy, Nv12, I420, Rgb, Bgr, Rgbx, Bgrx, Xrgb, Xbgr, Gray8, Mjpg };

    static constexpr int NumberBits = 16; // of the frame's number, as blocks along the top edge

    CameraPattern(PixelFormat pixelFormat, const QSize& size, int rowPadding);

    static bool pixelFormatFromName(const QString& name,
                                    PixelFormat& pixelFormat); // false: no such format

    PixelFormat pixelFormat() const { return m_pixelFormat; }
    QSize size() const { return m_size; }
    int stride() const { return m_stride; }
    int maxBytes() const;

    void setSize(const QSize& size);
    void setFormat(PixelFormat pixelFormat, const QSize& size);
    void setColor(const QColor& color) { m_color = color; }
    void setBlack() { m_isBlack = true; }
    void setNumbered(bool on) { m_isNumbered = on; }
    // Instead of all that: red and green above blue and white. The left edge of the upper half is
    // black in even frames and white in odd ones.
    void setQuadrants() { m_hasQuadrants = true; }

    QByteArray frame(int number) const;

private:
    struct Yuv
    {
        uchar y, u, v;
    };

    static Yuv toYuv(QRgb color);

    int topRows() const; // those that differ from the others
    QRgb pixel(int x, bool isTop, int number) const;
    QRgb quadrantPixel(int x, bool isTop, int number) const;
    QByteArray row(int number, bool isTop) const;
    QByteArray chromaRow(int number, bool isTop, bool isV) const;
    QByteArray jpeg(int number) const;
    bool isPlanar() const { return m_pixelFormat == Nv12 || m_pixelFormat == I420; }

    PixelFormat m_pixelFormat;
    QSize m_size;
    int m_rowPadding;
    int m_stride = 0;
    QColor m_color = QColor(200, 40, 40);
    bool m_isNumbered = false;
    bool m_isBlack = false;
    bool m_hasQuadrants = false;
};

} // namespace TestSupport
