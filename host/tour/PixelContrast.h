// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/tour/Contrast.h"

#include <QImage>

// Contrast, told from the pixels that a user sees.
namespace PixelContrast {

struct Colors
{
    QRgb ground;
    QRgb ink;
    double ratio() const { return Contrast::ratio(ground, ink); }
};

// Of a painted text: the ground is the most frequent colour, the letters have the colour that
// differs most from it.
Colors ofText(const QImage& picture);

// The strongest change from one picture to the other, of equal size, that shows in this many
// pixels at least.
double ofChange(const QImage& before, const QImage& after, int leastPixels);

} // namespace PixelContrast
