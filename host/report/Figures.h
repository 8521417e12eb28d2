// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

// The figures that a report lists of each check, whether they were taken or not.
namespace Figures {

enum class Unit { None, Ms, Percent, Share, Pixels, PerSecond, Hertz, Decibels, Seconds };

struct Figure
{
    FigureName name;
    Unit unit;
};

const std::vector<Figure>& of(CheckKind check);
const Figure* find(CheckKind check, const QString& key); // null for a figure of no list
// A value of the figure's unit as people read it, such as "37 ms"; a share as percent.
QString toText(double value, Unit unit);

} // namespace Figures
