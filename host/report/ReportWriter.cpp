// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportWriter.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportTexts.h"
#include "host/report/ReportView.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QTextStream>

namespace {

const QString English = QStringLiteral("en");

// All colours have a contrast of at least 4.5 to 1 on white.
const char* const Style =
    "body{font:14px/1.5 sans-serif;color:#232323;background:#fff;max-width:46em;margin:2em auto;"
    "padding:0 1em}h1{font-size:1.5em}h2{font-size:1.1em;margin:1.5em 0 .3em}"
    "table{border-collapse:collapse;width:100%}"
    "th,td{text-align:left;vertical-align:top;padding:.25em .5em;border-bottom:1px solid #e5e5e5;"
    "overflow-wrap:anywhere}th{width:40%;font-weight:normal;color:#595959}"
    ".good{color:#007a55}.bad{color:#c62f0d}.notice{color:#8a5a00}"
    "[dir=rtl] th,[dir=rtl] td{text-align:right}"
    "article+article{border-top:2px solid #595959;margin-top:3em}";

constexpr CheckKind Checks[] = {CheckKind::Network, CheckKind::Camera, CheckKind::Speaker,
                                CheckKind::Microphone};

// The wanted language, then English if it is another one.
QStringList languagesOf(const QString& language)
{
    return language == English ? QStringList{English} : QStringList{language, English};
}

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

QString escaped(const QString& text)
{
    return Console::plainLine(text).toHtmlEscaped();
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

QString htmlLanguage(QString language)
{
    return language.replace(QLatin1Char('_'), QLatin1Char('-'));
}

void writeHtml(QTextStream& stream, const ReportView& view, bool isTwin)
{
    stream << "<article lang=\"" << htmlLanguage(view.language) << "\" dir=\""
           << (view.isRightToLeft ? "rtl" : "ltr") << "\">\n<h1>" << escaped(titleOf(view, isTwin))
           << "</h1>\n";
    for (const ReportView::Section& section : view.sections) {
        stream << "<h2>" << escaped(section.title) << "</h2>\n<table>\n";
        for (const ReportView::Row& row : section.rows) {
            stream << "<tr><th scope=\"row\"><bdi>" << escaped(row.caption) << "</bdi></th><td"
                   << markClass(row.mark) << "><bdi>" << escaped(row.value) << "</bdi></td></tr>\n";
        }
        stream << "</table>\n";
    }
    stream << "</article>\n";
}

QStringList roomRow(const Report& report, const QString& name, const ReportTexts& texts)
{
    QStringList row = {Console::plainLine(name),
                       Console::plainLine(report.facts.value(QLatin1String("account")).toString()),
                       texts.of(report.outcome)};
    std::size_t contradictions = 0;
    for (const CheckKind kind : Checks) {
        const ReportCheck* check = report.check(kind);
        row << (check ? texts.of(check->verdict) : QStringLiteral("-"));
        contradictions += check ? check->contradictions.size() : 0;
    }
    row << (report.grade ? texts.of(*report.grade) : QStringLiteral("-"))
        << QString::number(contradictions);
    return row;
}

} // namespace

QString ReportWriter::toText(const Report& report, const QString& language)
{
    QString text;
    QTextStream stream(&text);
    for (const QString& each : languagesOf(language)) {
        const bool isTwin = each != language;
        if (isTwin) {
            stream << "\n\n";
        }
        writeText(stream, ReportView::of(report, ReportTexts(each)), isTwin);
    }
    stream.flush();
    return text;
}

QString ReportWriter::toHtml(const std::vector<Report>& reports, const QString& language)
{
    QString html;
    QTextStream stream(&html);
    stream << "<!DOCTYPE html>\n<html lang=\"" << htmlLanguage(language)
           << "\">\n<head>\n<meta charset=\"utf-8\">\n"
              "<meta http-equiv=\"Content-Security-Policy\" "
              "content=\"default-src 'none'; style-src 'unsafe-inline'\">\n<title>"
           << escaped(ReportTexts(language).text("ID_Host_Report_Title")) << "</title>\n<style>"
           << Style << "</style>\n</head>\n<body>\n";
    for (const Report& report : reports) {
        for (const QString& each : languagesOf(language)) {
            writeHtml(stream, ReportView::of(report, ReportTexts(each)), each != language);
        }
    }
    stream << "</body>\n</html>\n";
    stream.flush();
    return html;
}

QByteArray ReportWriter::toJson(const Report& report)
{
    return Console::plainJson(QJsonDocument(ReportJson::toJson(report))).toUtf8();
}

QString ReportWriter::toRoomTable(const std::vector<Report>& reports, const QStringList& names,
                                  const QString& language)
{
    const ReportTexts texts(language);
    QStringList head = {QStringLiteral("#"), texts.caption("ID_NetworkPage_Account"),
                        texts.caption("ID_Host_Report_Outcome")};
    for (const CheckKind check : Checks) {
        head << texts.of(check);
    }
    head << texts.caption("ID_Host_Grade") << texts.caption("ID_Host_Report_Contradiction");
    TextTable table;
    table.addRow(head);
    for (std::size_t i = 0; i < reports.size(); ++i) {
        const bool isNamed = reports[i].redaction == Options::Redaction::None;
        table.addRow(roomRow(
            reports[i], isNamed ? names.at(static_cast<int>(i)) : QString::number(i + 1), texts));
    }
    return table.toText();
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
    switch (format) {
    case Options::Format::Text:
        return toText(report, language).toUtf8();
    case Options::Format::Html:
        return toHtml({report}, language).toUtf8();
    case Options::Format::Room:
    case Options::Format::Json:
        break;
    }
    return toJson(report);
}
