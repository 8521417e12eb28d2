// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/PixelContrast.h"

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

PixelContrast::Colors PixelContrast::ofText(const QImage& picture)
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

double PixelContrast::ofChange(const QImage& before, const QImage& after, int leastPixels)
{
    const QImage first = before.convertToFormat(QImage::Format_RGB32);
    const QImage second = after.convertToFormat(QImage::Format_RGB32);
    std::vector<double> changes;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            if (first.pixel(x, y) != second.pixel(x, y)) {
                changes.push_back(Contrast::ratio(first.pixel(x, y), second.pixel(x, y)));
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
