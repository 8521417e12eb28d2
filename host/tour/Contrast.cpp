// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/Contrast.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <vector>

namespace {

// Relative luminance.
double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

} // namespace

double Contrast::ratio(QRgb a, QRgb b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

Contrast::Colors Contrast::ofText(const QImage& picture)
{
    const QImage colors = picture.convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < colors.height(); ++y) {
        for (int x = 0; x < colors.width(); ++x) {
            ++counts[colors.pixel(x, y)];
        }
    }
    const QRgb ground =
        std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
            return a.second < b.second;
        })->first;
    const QRgb ink =
        std::max_element(counts.begin(), counts.end(), [ground](const auto& a, const auto& b) {
            return Contrast::ratio(a.first, ground) < Contrast::ratio(b.first, ground);
        })->first;
    return {ground, ink};
}

double Contrast::ofChange(const QImage& before, const QImage& after, int leastPixels)
{
    const QImage first = before.convertToFormat(QImage::Format_RGB32);
    const QImage second = after.convertToFormat(QImage::Format_RGB32);
    std::vector<double> changes;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            if (first.pixel(x, y) != second.pixel(x, y)) {
                changes.push_back(ratio(first.pixel(x, y), second.pixel(x, y)));
            }
        }
    }
    if (changes.size() < size_t(std::max(leastPixels, 1))) {
        return 1.0;
    }
    const auto least = changes.begin() + std::max(leastPixels, 1) - 1;
    std::nth_element(changes.begin(), least, changes.end(), std::greater<>());
    return *least;
}
