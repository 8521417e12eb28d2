// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

class ReportTexts;

// A report as people read it, in one language. Text and HTML both show exactly this.
struct ReportView
{
    enum class Mark { Plain, Good, Bad, Notice };

    struct Row
    {
        QString caption;
        QString value; // may contain foreign text
        Mark mark = Mark::Plain;
    };

    struct Section
    {
        QString title;
        std::vector<Row> rows;
    };

    QString language;
    bool isRightToLeft = false;
    QString title;
    std::vector<Section> sections;

    static ReportView of(const Report& report, const ReportTexts& texts);
};
