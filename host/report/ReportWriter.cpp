// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportWriter.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "host/report/HtmlPage.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportTexts.h"
#include "host/report/ReportView.h"
#include "host/report/SeriesPlot.h"
#include "host/report/TwinTexts.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QTextStream>

namespace {

using HtmlPage::escaped;

QString titleOf(const ReportView& view, bool isTwin)
{
    return isTwin ? view.title + QStringLiteral(" (English, for support)") : view.title;
}

char markOf(const ReportView::Row& row)
{
    switch (row.mark) {
    case ReportView::Mark::Bad:
        return 'x';
    case ReportView::Mark::Notice:
        return '!';
    case ReportView::Mark::Good:
    case ReportView::Mark::Plain:
        break;
    }
    return ' ';
}

void writeText(QTextStream& stream, const ReportView& view, bool isTwin)
{
    const QString title = Console::plainLine(titleOf(view, isTwin));
    stream << title << '\n' << QString(Console::columns(title), QLatin1Char('=')) << '\n';
    for (const ReportView::Section& section : view.sections) {
        TextTable table;
        for (const ReportView::Row& row : section.rows) {
            const QString caption = QStringLiteral(" %1 %2")
                                        .arg(QLatin1Char(markOf(row)))
                                        .arg(Console::plainLine(row.caption));
            table.addRow({caption, Console::plainLine(row.value)});
        }
        stream << '\n' << Console::plainLine(section.title) << '\n' << table.toText();
    }
}

QString markClass(ReportView::Mark mark)
{
    switch (mark) {
    case ReportView::Mark::Good:
        return QStringLiteral(" class=\"good\"");
    case ReportView::Mark::Bad:
        return QStringLiteral(" class=\"bad\"");
    case ReportView::Mark::Notice:
        return QStringLiteral(" class=\"notice\"");
    case ReportView::Mark::Plain:
        break;
    }
    return {};
}

QString tableOf(const ReportView::Section& section)
{
    QString table = QStringLiteral("<table>\n");
    for (const ReportView::Row& row : section.rows) {
        table += QStringLiteral("<tr><th scope=\"row\"><bdi>") + escaped(row.caption) +
                 QStringLiteral("</bdi></th><td") + markClass(row.mark) + QStringLiteral("><bdi>") +
                 escaped(row.value) + QStringLiteral("</bdi></td></tr>\n");
    }
    return table + QStringLiteral("</table>\n");
}

QString foldedOf(const QString& title, const QString& content)
{
    return QStringLiteral("<details>\n<summary>%1</summary>\n").arg(escaped(title)) + content +
           QStringLiteral("</details>\n");
}

QString plotsOf(const ReportView::Section& section, bool isRightToLeft)
{
    QString html;
    for (const ReportView::Plot& plot : section.plots) {
        html += SeriesPlot::toHtml(plot.series, plot.caption,
                                   isRightToLeft ? SeriesPlot::Direction::RightToLeft
                                                 : SeriesPlot::Direction::LeftToRight);
    }
    return html;
}

// The first section says what is wrong and what to do; the others are folded.
QString sectionsOf(const ReportView& view)
{
    QString html;
    for (const ReportView::Section& section : view.sections) {
        const QString table = tableOf(section) + plotsOf(section, view.isRightToLeft);
        html += html.isEmpty() ? QStringLiteral("<h2>%1</h2>\n").arg(escaped(section.title)) + table
                               : foldedOf(section.title, table);
    }
    return html;
}

} // namespace

QString ReportWriter::toText(const Report& report, const TwinTexts& texts)
{
    QString text;
    QTextStream stream(&text);
    writeText(stream, ReportView::of(report, texts.own()), false);
    if (texts.english()) {
        stream << "\n\n";
        writeText(stream, ReportView::of(report, *texts.english()), true);
    }
    stream.flush();
    return text;
}

QByteArray ReportWriter::toJson(const Report& report)
{
    return Console::plainJson(QJsonDocument(ReportJson::toJson(report))).toUtf8();
}

QString ReportWriter::htmlBegin(const TwinTexts& texts)
{
    return HtmlPage::begin(texts.own(), texts.own().text("ID_Host_Report_Title")) +
           QStringLiteral("<body>\n");
}

QString ReportWriter::htmlOf(const Report& report, const TwinTexts& texts)
{
    const ReportView view = ReportView::of(report, texts.own());
    QString html = QStringLiteral("<article %1>\n<h1>%2</h1>\n")
                       .arg(HtmlPage::languageOf(texts.own()), escaped(view.title)) +
                   sectionsOf(view);
    if (texts.english()) {
        const ReportView twin = ReportView::of(report, *texts.english());
        html += QStringLiteral("<section %1>\n").arg(HtmlPage::languageOf(*texts.english())) +
                foldedOf(titleOf(twin, true), sectionsOf(twin)) + QStringLiteral("</section>\n");
    }
    return html + QStringLiteral("</article>\n");
}

QString ReportWriter::htmlEnd()
{
    return HtmlPage::end();
}

Options::Format ReportWriter::formatOf(const QString& fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == QLatin1String("html") || ending == QLatin1String("htm")) {
        return Options::Format::Html;
    }
    return ending == QLatin1String("txt") ? Options::Format::Text : Options::Format::Json;
}

QByteArray ReportWriter::toFormat(const Report& report, Options::Format format,
                                  const QString& language)
{
    const TwinTexts texts(language);
    if (format == Options::Format::Text) {
        return toText(report, texts).toUtf8();
    }
    if (format == Options::Format::Html) {
        return (htmlBegin(texts) + htmlOf(report, texts) + htmlEnd()).toUtf8();
    }
    return toJson(report);
}
