// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/NetworkGrade.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double GoodDelayMs = 150;
constexpr double FairDelayMs = 400;
constexpr double GoodLossPercent = 1;
constexpr double FairLossPercent = 3;
constexpr double GoodJitterMs = 50;

NetworkGrade::Line line(NetworkGrade::Figure figure, double value, double goodUpTo, double fairUpTo,
                        const char* source)
{
    using Level = NetworkGrade::Level;
    const Level level = value <= goodUpTo   ? Level::Good
                        : value <= fairUpTo ? Level::Fair
                                            : Level::Poor;
    return {figure, value, goodUpTo, fairUpTo, level, QLatin1String(source)};
}

} // namespace

NetworkGrade NetworkGrade::of(const Platform::NetworkFigures& figures)
{
    if (figures.delayMs < 0 || figures.problem == Platform::NetworkProblem::NoServer) {
        return {};
    }
    NetworkGrade grade;
    grade.lines = {
        line(Figure::OneWayDelay, figures.delayMs / 2.0, GoodDelayMs, FairDelayMs, "ITU-T G.114"),
        line(Figure::Loss, figures.lossPercent, GoodLossPercent, FairLossPercent, "ITU-T G.1010"),
        line(Figure::Jitter, figures.jitterMs, GoodJitterMs, std::numeric_limits<double>::max(),
             "ITU-T Y.1541"),
    };
    const auto worst =
        std::max_element(grade.lines.begin(), grade.lines.end(),
                         [](const Line& a, const Line& b) { return a.level < b.level; });
    grade.level = worst->level;
    return grade;
}
