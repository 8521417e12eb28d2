// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/ScreenPicture.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr int GridStep = 9;      // pixels between two samples
constexpr int EdgeGridStep = 3;  // where a sample is kept only at an edge
constexpr int SmallPart = 2048;  // pixels, of which all are samples
constexpr int EdgeStrength = 60; // of grey between neighbours
constexpr int Tolerance = 48;    // of grey: balloons let through what is below them
constexpr int LeastAlpha = 200;  // more transparent parts aren't looked at
constexpr int MostMissesPercent = 25;

struct Sample
{
    QPoint place;
    int grey;
};

// Edges tell one place from its neighbours; even parts tell the window from others.
std::vector<Sample> samplesOf(const QImage& part)
{
    std::vector<Sample> samples;
    const bool isSmall = part.width() * part.height() <= SmallPart;
    const int step = isSmall ? 1 : EdgeGridStep;
    for (int y = 1; y < part.height() - 1; y += step) {
        for (int x = 1; x < part.width() - 1; x += step) {
            const int grey = qGray(part.pixel(x, y));
            const bool isEdge = std::abs(grey - qGray(part.pixel(x + 1, y))) > EdgeStrength ||
                                std::abs(grey - qGray(part.pixel(x, y + 1))) > EdgeStrength;
            const bool isOnGrid = isSmall || (x % GridStep == 1 && y % GridStep == 1);
            const bool isSeen = qAlpha(part.pixel(x, y)) >= LeastAlpha;
            if (isSeen && (isEdge || isOnGrid)) {
                samples.push_back({{x, y}, grey});
            }
        }
    }
    return samples;
}

// Gives up beyond the limit.
int missesAt(const QImage& screen, const std::vector<Sample>& samples, const QPoint& origin,
             int limit)
{
    int misses = 0;
    for (const Sample& sample : samples) {
        const QPoint place = origin + sample.place;
        const int grey = screen.constScanLine(place.y())[place.x()];
        misses += std::abs(grey - sample.grey) > Tolerance ? 1 : 0;
        if (misses >= limit) {
            break;
        }
    }
    return misses;
}

} // namespace

std::optional<QPoint> ScreenPicture::find(const QImage& screen, const QImage& part,
                                          const QPoint& guess)
{
    const QImage grey = screen.convertToFormat(QImage::Format_Grayscale8);
    const std::vector<Sample> samples = samplesOf(part.convertToFormat(QImage::Format_ARGB32));
    const QRect origins(QPoint(), screen.size() - part.size() + QSize(1, 1));
    if (samples.empty() || origins.isEmpty()) {
        return std::nullopt;
    }
    int least = int(samples.size()) * MostMissesPercent / 100 + 1;
    std::optional<QPoint> best;
    const auto tryPlace = [&](const QPoint& origin) {
        const int misses = missesAt(grey, samples, origin, least);
        if (misses < least) {
            least = misses;
            best = origin;
        }
    };
    if (origins.contains(guess)) {
        tryPlace(guess);
    }
    for (int y = origins.top(); y <= origins.bottom(); ++y) {
        for (int x = origins.left(); x <= origins.right(); ++x) {
            tryPlace({x, y});
        }
    }
    return best;
}
