// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"
#include "host/report/ReportSeries.h"

class ReportTexts;

// A report as people read it, in one language. Text and HTML both show exactly this, but for the
// plots.
struct ReportView
{
    enum class Mark { Plain, Good, Bad, Notice };

    struct Row
    {
        QString caption;
        QString value; // may contain foreign text
        Mark mark = Mark::Plain;
    };

    // How a figure went; for pages that can draw it.
    struct Plot
    {
        QString caption;
        ReportSeries series;
    };

    struct Section
    {
        QString title;
        std::vector<Row> rows;
        std::vector<Plot> plots;
    };

    QString language;
    bool isRightToLeft = false;
    QString title;
    std::vector<Section> sections;

    static ReportView of(const Report& report, const ReportTexts& texts);
};
