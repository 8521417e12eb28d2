// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportOutput.h"
#include "host/report/ReportTexts.h"
#include "host/report/RoomRow.h"
#include "host/report/SortedRows.h"

#include <map>

// A room as an HTML page: one tile for each report, the worst first, coloured by its verdicts.
// Opened, a tile says what to do.
class RoomMap final : public ReportOutput
{
public:
    RoomMap(const QString& language, const Print& print);

    void add(const Report& report, const QString& name) override;
    void finish() override;
    QString problem() const override { return m_tiles.problem(); }

private:
    QString tileOf(const RoomRow& row, Verdict verdict) const;
    QString lineOf(const RoomRow::Check& check) const;

    const ReportTexts m_texts;
    const Print m_print;
    SortedRows m_tiles;
    std::map<Verdict, int> m_counts;
};
