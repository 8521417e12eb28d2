// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/ReportCommand.h"

#include "host/Console.h"
#include "host/Folders.h"
#include "host/Options.h"
#include "host/report/Redaction.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

QString shown(const std::vector<Report>& reports, const QStringList& names, Options::Format format,
              const QString& language)
{
    QString text;
    switch (format) {
    case Options::Format::Html:
        return ReportWriter::toHtml(reports, language);
    case Options::Format::Room:
        return ReportWriter::toRoomTable(reports, names, language);
    case Options::Format::Text:
        for (const Report& report : reports) {
            text += (text.isEmpty() ? QString() : QStringLiteral("\n\n")) +
                    ReportWriter::toText(report, language);
        }
        return text;
    case Options::Format::Json:
        break;
    }
    if (reports.size() == 1) {
        return QString::fromUtf8(ReportWriter::toJson(reports.front()));
    }
    QJsonArray array;
    for (const Report& report : reports) {
        array.append(ReportJson::toJson(report));
    }
    return Console::plainJson(QJsonDocument(array));
}

} // namespace

ExitCode ReportCommand::run(const Options& options, const QString& language)
{
    QString problem;
    QByteArray key;
    if (options.redaction == Options::Redaction::Hash) {
        key = ReportFile::redactionKey(Folders::redactionKey(), &problem);
        if (key.isEmpty()) {
            Console::printError(problem);
            return ExitCode::CannotWrite;
        }
    }
    const Redaction redaction(options.redaction, key);
    std::vector<Report> reports;
    QStringList names;
    for (const QString& file : options.files) {
        const std::optional<Report> report = ReportFile::read(file, &problem);
        if (!report) {
            Console::printError(problem);
            return ExitCode::BadInput;
        }
        reports.push_back(redaction.redacted(*report));
        names << QFileInfo(file).completeBaseName();
    }
    Console::print(shown(reports, names, options.format, language));
    return ExitCode::AllPassed;
}
