// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/RoomMap.h"

#include "host/report/Figures.h"
#include "host/report/HtmlPage.h"

#include <QTextStream>

namespace {

using HtmlPage::escaped;

// The colour alone tells nothing to those who don't see it, or print in grey.
QString signOf(Verdict verdict)
{
    return isGood(verdict)  ? QStringLiteral("\u2713")
           : isBad(verdict) ? QStringLiteral("\u2717")
                            : QStringLiteral("?");
}

QString classOf(Verdict verdict)
{
    return isGood(verdict)  ? QStringLiteral("good")
           : isBad(verdict) ? QStringLiteral("bad")
                            : QStringLiteral("notice");
}

// One failed check makes the whole computer fail.
Verdict verdictOf(const RoomRow& row)
{
    const auto& checks = row.checks;
    const bool isAnyBad = std::any_of(checks.begin(), checks.end(),
                                      [](const RoomRow::Check& c) { return isBad(c.verdict); });
    const bool areAllGood = std::all_of(checks.begin(), checks.end(),
                                        [](const RoomRow::Check& c) { return isGood(c.verdict); });
    return isAnyBad ? Verdict::Failed : areAllGood ? Verdict::Passed : Verdict::NotTested;
}

} // namespace

RoomMap::RoomMap(const QString& language, const Print& print) : m_texts(language), m_print(print)
{
}

QString RoomMap::lineOf(const RoomRow::Check& check) const
{
    QString line =
        QStringLiteral("<p><span class=\"%1\">%2 %3</span>")
            .arg(classOf(check.verdict), signOf(check.verdict), escaped(m_texts.of(check.kind)));
    if (!check.device.isEmpty()) {
        line += QStringLiteral(" <bdi>%1</bdi>").arg(escaped(check.device));
    }
    for (const Cause cause : check.causes) {
        line += QStringLiteral("<br>") + escaped(m_texts.of(cause));
    }
    return line + QStringLiteral("</p>");
}

QString RoomMap::tileOf(const RoomRow& row, Verdict verdict) const
{
    QString tile;
    QTextStream stream(&tile);
    stream << "<li class=\"" << classOf(verdict) << "\"><details><summary>" << signOf(verdict)
           << " <bdi>" << escaped(row.computer) << "</bdi>";
    for (const RoomRow::Check& check : row.checks) {
        if (isBad(check.verdict)) {
            stream << "<br>" << escaped(m_texts.of(check.kind));
        }
    }
    stream << "</summary><p>" << ReportTexts::timeOf(row.finished) << "</p>";
    for (const RoomRow::Check& check : row.checks) {
        stream << lineOf(check);
    }
    if (row.delayMs && row.lossPercent) {
        stream << "<p>" << Figures::toText(*row.delayMs, Figures::Unit::Ms) << ", "
               << Figures::toText(*row.lossPercent, Figures::Unit::Percent) << "</p>";
    }
    stream << "</details></li>\n";
    stream.flush();
    return tile;
}

void RoomMap::add(const Report& report, const QString& name)
{
    const RoomRow row = RoomRow::of(report, name);
    const Verdict verdict = verdictOf(row);
    ++m_counts[verdict];
    m_tiles.add(row.badness(), tileOf(row, verdict).toUtf8());
}

void RoomMap::finish()
{
    if (m_tiles.count() == 0) {
        return;
    }
    const QString title = m_texts.text("ID_Host_Report_Title");
    m_print(HtmlPage::begin(m_texts, title) +
            QStringLiteral("<body class=\"wide\">\n<h1>%1</h1>\n<p>%2: %3")
                .arg(escaped(title), escaped(m_texts.caption("ID_Host_Report_Count")))
                .arg(m_tiles.count()));
    for (const auto& verdict : ReportWords::table<Verdict>()) {
        m_print(QStringLiteral(" · <span class=\"%1\">%2 %3: %4</span>")
                    .arg(classOf(verdict.value), signOf(verdict.value),
                         escaped(m_texts.of(verdict.value)))
                    .arg(m_counts[verdict.value]));
    }
    m_print(QStringLiteral("</p>\n<ul class=\"map\">\n"));
    m_tiles.visit([this](const QByteArray& tile) { m_print(QString::fromUtf8(tile)); });
    m_print(QStringLiteral("</ul>\n") + HtmlPage::end());
}
