// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/NetworkProbe.h"

#include <QString>
#include <vector>

// How good a network is for talking and seeing each other, by published limits. The check's own
// verdict has fixed limits that are far wider; this stands beside it and changes nothing.
struct NetworkGrade
{
    enum class Level { Good, Fair, Poor };
    enum class Figure { OneWayDelay, Loss, Jitter };

    // One figure against its limits. The delay is one way: half of the round trip.
    struct Line
    {
        Figure figure = Figure::OneWayDelay;
        double value = 0;
        double goodUpTo = 0;
        double fairUpTo = 0; // as good as never reached where only one limit is published
        Level level = Level::Good;
        QString source;
    };

    Level level = Level::Good; // the worst of its lines
    std::vector<Line> lines;

    // Something must have been measured: a negative delay has no grade, and gives no lines.
    static NetworkGrade of(const Platform::NetworkFigures& figures);
};
