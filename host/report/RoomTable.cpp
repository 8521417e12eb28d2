// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RoomTable.h"

#include "host/TextTable.h"
#include "host/report/Figures.h"

#include <algorithm>

namespace {

constexpr int LongestDevice = 24;
// Cells contain no control characters.
const QLatin1Char Separator('\t');
const QString Nothing = QStringLiteral("-");

QString numberOf(std::optional<double> value, Figures::Unit unit)
{
    return value ? Figures::toText(*value, unit) : Nothing;
}

QString shortened(const QString& text)
{
    return text.size() <= LongestDevice ? text : text.left(LongestDevice - 1) + QChar(0x2026);
}

} // namespace

RoomTable::RoomTable(const QString& language, const Print& print)
    : m_texts(language), m_print(print)
{
    TextTable::widen(m_widths, head());
}

QStringList RoomTable::head() const
{
    QStringList cells = {m_texts.caption("ID_Host_Report_Computer"),
                         m_texts.caption("ID_Host_Report_Time"),
                         m_texts.caption("ID_Host_Report_Outcome")};
    for (const auto& check : ReportWords::table<CheckKind>()) {
        if (isStep(check.value)) {
            cells << m_texts.of(check.value);
        }
    }
    return cells << m_texts.of(FigureName::Delay) << m_texts.of(FigureName::Loss)
                 << m_texts.caption("ID_Host_Grade")
                 << m_texts.caption("ID_Host_Report_Contradiction")
                 << m_texts.caption("ID_Host_Report_Causes");
}

QString RoomTable::cellOf(const RoomRow::Check& check) const
{
    const QString verdict = m_texts.of(check.verdict);
    return check.device.isEmpty() ? verdict
                                  : QStringLiteral("%1 (%2)").arg(verdict, shortened(check.device));
}

QStringList RoomTable::cellsOf(const RoomRow& row) const
{
    QStringList cells = {row.computer, ReportTexts::timeOf(row.finished), m_texts.of(row.outcome)};
    for (const RoomRow::Check& check : row.checks) {
        if (isStep(check.kind)) {
            cells << cellOf(check);
        }
    }
    const QString causes = row.causes();
    return cells << numberOf(row.delayMs, Figures::Unit::Ms)
                 << numberOf(row.lossPercent, Figures::Unit::Percent)
                 << (row.grade ? m_texts.of(*row.grade) : Nothing)
                 << QString::number(row.contradictions) << (causes.isEmpty() ? Nothing : causes);
}

void RoomTable::add(const Report& report, const QString& name)
{
    const RoomRow row = RoomRow::of(report, name);
    const QStringList cells = cellsOf(row);
    TextTable::widen(m_widths, cells);
    m_rows.add(row.badness(), cells.join(Separator).toUtf8());
    for (const RoomRow::Check& check : row.checks) {
        ++m_counts[{check.kind, check.verdict}];
    }
}

QString RoomTable::totals() const
{
    TextTable table;
    // Those of runs without a person only if there are such runs.
    std::vector<Verdict> shown;
    for (const auto& verdict : ReportWords::table<Verdict>()) {
        const bool isThere =
            std::any_of(m_counts.begin(), m_counts.end(), [&verdict](const auto& count) {
                return count.first.second == verdict.value;
            });
        if (isAttended(verdict.value) || isThere) {
            shown.push_back(verdict.value);
        }
    }
    QStringList verdicts = {QString()};
    for (const Verdict verdict : shown) {
        verdicts << m_texts.of(verdict);
    }
    table.addRow(verdicts);
    for (const auto& check : ReportWords::table<CheckKind>()) {
        QStringList cells = {m_texts.of(check.value)};
        bool isThere = isStep(check.value);
        for (const Verdict verdict : shown) {
            const auto found = m_counts.find({check.value, verdict});
            isThere = isThere || found != m_counts.end();
            cells << QString::number(found == m_counts.end() ? 0 : found->second);
        }
        if (isThere) {
            table.addRow(cells);
        }
    }
    return table.toText();
}

void RoomTable::finish()
{
    if (m_rows.count() == 0) {
        return;
    }
    m_print(TextTable::line(head(), m_widths));
    m_rows.visit([this](const QByteArray& row) {
        m_print(TextTable::line(QString::fromUtf8(row).split(Separator), m_widths));
    });
    m_print(QStringLiteral("\n%1: %2\n")
                .arg(m_texts.caption("ID_Host_Report_Count"))
                .arg(m_rows.count()) +
            totals());
}
