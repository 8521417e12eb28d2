// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

// The figures that a report lists of each check, whether they were taken or not.
namespace Figures {

enum class Unit { None, Ms, Percent, Share, Pixels, PerSecond, Hertz, Decibels, Seconds };

struct Figure
{
    const char* key;
    const char* captionId; // of its caption
    Unit unit;
};

const std::vector<Figure>& of(const QString& check);
const Figure* find(const QString& check, const QString& key); // null for a figure of no list
// A value of the figure's unit as people read it, such as "37 ms"; a share as percent.
QString toText(double value, Unit unit);

} // namespace Figures
