// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportOutput.h"
#include "host/report/ReportTexts.h"
#include "host/report/RoomRow.h"
#include "host/report/SortedRows.h"

#include <map>
#include <utility>

// One line for each report, the worst first, and how many passed and failed.
class RoomTable final : public ReportOutput
{
public:
    RoomTable(const QString& language, const Print& print);

    void add(const Report& report, const QString& name) override;
    void finish() override;
    QString problem() const override { return m_rows.problem(); }

private:
    QStringList head() const;
    QStringList cellsOf(const RoomRow& row) const;
    QString cellOf(const RoomRow::Check& check) const;
    QString totals() const;

    const ReportTexts m_texts;
    const Print m_print;
    std::vector<int> m_widths;
    SortedRows m_rows;
    std::map<std::pair<CheckKind, Verdict>, int> m_counts;
};
