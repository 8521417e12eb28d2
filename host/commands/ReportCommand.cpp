// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/ReportCommand.h"

#include "host/Console.h"
#include "host/Folders.h"
#include "host/Options.h"
#include "host/report/Redaction.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportOutput.h"
#include "host/report/ReportReader.h"
#include "host/report/ReportWriter.h"
#include "host/report/RunHistory.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace {

// A file's name may be that of a person, so a redacted report has its number instead.
QString nameOf(const ReportReader::Read& read, int number)
{
    return read.report->redaction == Options::Redaction::None
               ? QFileInfo(read.file).completeBaseName()
               : QString::number(number);
}

// Gathers the texts: one call of the system for each report takes longer than to read it.
class Printer
{
public:
    ~Printer() { Console::print(m_text); }

    void print(const QString& text)
    {
        constexpr int Enough = 65536;
        m_text += text;
        if (m_text.size() > Enough) {
            Console::print(m_text);
            m_text.clear();
        }
    }

private:
    QString m_text;
};

// The report of the newest run that wrote JSON. Nothing if there is none; then it has printed so.
std::optional<QStringList> lastReport()
{
    QString problem;
    std::vector<RunHistory::Run> runs = RunHistory(Folders::runs()).runs(&problem);
    const auto last = std::find_if(runs.rbegin(), runs.rend(), [](const RunHistory::Run& run) {
        return ReportWriter::formatOf(run.report) == Options::Format::Json &&
               QFileInfo(run.report).isFile();
    });
    if (last == runs.rend()) {
        Console::printError(problem.isEmpty() ? qtTrId("ID_Host_History_NoReport") : problem);
        return std::nullopt;
    }
    return QStringList{last->report};
}

// The files of the command line, and the files that --files-from lists. Nothing if that list can't
// be read; then it has printed why.
std::optional<QStringList> filesOf(const Options& options)
{
    if (options.files.isEmpty() && options.filesFrom.isEmpty()) {
        return lastReport();
    }
    if (options.filesFrom.isEmpty()) {
        return options.files;
    }
    QByteArray names;
    const QString problem = ReportFile::contentOf(options.filesFrom, &names);
    if (!problem.isEmpty()) {
        Console::printError(problem);
        return std::nullopt;
    }
    QStringList files = options.files;
    for (const QByteArray& name : names.split('\n')) {
        if (!name.isEmpty()) {
            files << QFile::decodeName(name);
        }
    }
    return files;
}

} // namespace

ExitCode ReportCommand::run(const Options& options, const QString& language)
{
    QString problem;
    const std::optional<Redaction> redaction =
        Redaction::withKeyIn(Folders::redactionKey(), options.redaction, &problem);
    if (!redaction) {
        Console::printError(problem);
        return ExitCode::CannotWrite;
    }
    const std::optional<QStringList> files = filesOf(options);
    if (!files) {
        return ExitCode::BadInput;
    }
    Printer printer;
    const std::unique_ptr<ReportOutput> output =
        ReportOutput::create(options.format, language, files->size() > 1,
                             [&printer](const QString& text) { printer.print(text); });
    bool areAllRead = true;
    int number = 0;
    ReportReader::readAll(*files, *redaction, [&](const ReportReader::Read& read) {
        ++number;
        if (read.report) {
            output->add(*read.report, nameOf(read, number));
        } else {
            Console::printError(read.problem);
            areAllRead = false;
        }
    });
    output->finish();
    if (!output->problem().isEmpty()) {
        Console::printError(output->problem());
        return ExitCode::CannotWrite;
    }
    return areAllRead ? ExitCode::AllPassed : ExitCode::BadInput;
}
