// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/NetworkProbe.h"

#include <QString>
#include <vector>

// How good a network is for a conversation with video, by published limits. The verdict of the
// check has its own limits, which are far wider; the grade is extra and doesn't change it.
struct NetworkGrade
{
    enum class Level { Good, Fair, Poor };
    enum class Figure { OneWayDelay, Loss, Jitter };

    // One figure and its limits. The delay is one-way: half of the round trip.
    struct Line
    {
        Figure figure = Figure::OneWayDelay;
        double value = 0;
        double goodUpTo = 0;
        double fairUpTo = 0; // practically unlimited if only one limit is published
        Level level = Level::Good;
        QString source;
    };

    Level level = Level::Good; // the worst of its lines
    std::vector<Line> lines;

    // Needs a delay that was measured to a server: else there are no lines and no grade.
    static NetworkGrade of(const Platform::NetworkFigures& figures);
};
