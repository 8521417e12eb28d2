// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportWords.h"

#include <QJsonObject>

// The figures that a report lists for each check, measured or not.
namespace Figures {

enum class Unit { None, Ms, Percent, Share, Pixels, PerSecond, Hertz, Decibels, Seconds };

struct Figure
{
    FigureName name;
    Unit unit;
};

const std::vector<Figure>& of(CheckKind check);
const Figure* find(CheckKind check, const QString& key); // null if no list has it
// Why figures without a delay have none, when a server was asked.
Reason whyNoDelay(const QJsonObject& figures);
// A value with the unit of the figure, such as "37 ms"; shares as percent.
QString toText(double value, Unit unit);

} // namespace Figures
