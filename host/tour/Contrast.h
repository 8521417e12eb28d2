// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

// Relative luminance and contrast ratio as WCAG 2.1 defines them.
namespace Contrast {

constexpr double LeastOfText = 4.5;  // success criterion 1.4.3
constexpr double LeastOfFocus = 3.0; // success criterion 1.4.11

inline double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

inline double ratio(QRgb a, QRgb b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

} // namespace Contrast
