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
    switch (verdict) {
    case Verdict::Passed:
        return QStringLiteral("\u2713");
    case Verdict::Failed:
        return QStringLiteral("\u2717");
    case Verdict::NotTested:
        break;
    }
    return QStringLiteral("?");
}

QString classOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Passed:
        return QStringLiteral("good");
    case Verdict::Failed:
        return QStringLiteral("bad");
    case Verdict::NotTested:
        break;
    }
    return QStringLiteral("notice");
}

// One failed check makes the whole computer fail.
Verdict verdictOf(const RoomRow& row)
{
    const auto has = [&row](Verdict verdict) {
        return std::any_of(row.checks.begin(), row.checks.end(),
                           [verdict](const RoomRow::Check& c) { return c.verdict == verdict; });
    };
    return has(Verdict::Failed)      ? Verdict::Failed
           : has(Verdict::NotTested) ? Verdict::NotTested
                                     : Verdict::Passed;
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
        if (check.verdict == Verdict::Failed) {
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
