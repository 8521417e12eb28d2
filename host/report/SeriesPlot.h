// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportSeries.h"

// A small plot of a series for an HTML page, as SVG: numbers and lines alone, in the colours of the
// page.
namespace SeriesPlot {

enum class Direction { LeftToRight, RightToLeft }; // in which the time goes, as the page is read

QString toHtml(const ReportSeries& series, const QString& caption, Direction direction);

} // namespace SeriesPlot
