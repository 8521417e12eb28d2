// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/Contrast.h"

#include <QImage>
#include <QWidget>
#include <map>

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

// Of letters on a plain ground: the most frequent colour is the ground, and the letters have the
// one that differs most from it.
inline double textContrast(const QImage& picture, const QRect& area)
{
    const qreal scale = picture.devicePixelRatio();
    const QImage part = picture.copy(QRectF(area.topLeft() * scale, area.size() * scale).toRect());
    std::map<QRgb, int> counts;
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            ++counts[part.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    int most = 0;
    for (const auto& [color, count] : counts) {
        ground = count > most ? color : ground;
        most = std::max(most, count);
    }
    double ratio = 1.0;
    for (const auto& [color, count] : counts) {
        ratio = std::max(ratio, Contrast::ratio(color, ground));
    }
    return ratio;
}

} // namespace TestSupport
