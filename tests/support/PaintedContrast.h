// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/PixelContrast.h"

#include <QImage>
#include <QWidget>

// Contrast, told from the pixels that a user sees.
namespace TestSupport {

inline QImage pictureOf(QWidget* window)
{
    return window->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// How many pixels of the area, in the window's coordinates, differ enough between a picture of the
// window with the focus and one without it.
inline int focusPixels(const QImage& with, const QImage& without, const QRect& area)
{
    int count = 0;
    const qreal scale = with.devicePixelRatio();
    const QRect rect = QRectF(area.topLeft() * scale, area.size() * scale).toRect() & with.rect();
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const double ratio = Contrast::ratio(with.pixel(x, y), without.pixel(x, y));
            count += ratio >= Contrast::LeastOfFocus ? 1 : 0;
        }
    }
    return count;
}

// Of letters on a plain ground, in the area.
inline double textContrast(const QImage& picture, const QRect& area)
{
    const qreal scale = picture.devicePixelRatio();
    const QRect rect = QRectF(area.topLeft() * scale, area.size() * scale).toRect();
    return PixelContrast::ofText(picture.copy(rect)).ratio();
}

} // namespace TestSupport
