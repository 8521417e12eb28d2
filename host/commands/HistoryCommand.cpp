// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/HistoryCommand.h"

#include "host/Console.h"
#include "host/Folders.h"
#include "host/Options.h"
#include "host/TextTable.h"
#include "host/report/ReportTexts.h"
#include "host/report/RunHistory.h"

#include <QFileInfo>
#include <QJsonArray>

namespace {

const QString Nothing = QStringLiteral("-");

// The text of a word, or the word itself if it is unknown.
template <typename Value>
QString textOf(const ReportTexts& texts, const QJsonValue& word)
{
    const std::optional<Value> value = ReportWords::find<Value>(word.toString());
    return value ? texts.of(*value) : Console::plainLine(word.toString());
}

QStringList headOf(const ReportTexts& texts)
{
    QStringList cells = {texts.caption("ID_Host_Report_Time"),
                         texts.caption("ID_Host_Report_Outcome")};
    for (const auto& check : ReportWords::table<CheckKind>()) {
        if (isStep(check.value)) {
            cells << texts.of(check.value);
        }
    }
    return cells << texts.caption("ID_Host_Report_Title");
}

QStringList cellsOf(const RunHistory::Run& run, const ReportTexts& texts)
{
    QStringList cells = {ReportTexts::timeOf(run.finished), textOf<RunEnd>(texts, run.outcome)};
    for (const auto& check : ReportWords::table<CheckKind>()) {
        if (isStep(check.value)) {
            cells << textOf<Verdict>(texts, run.verdicts.value(QLatin1String(check.word)));
        }
    }
    const bool hasReport = !run.report.isEmpty() && QFileInfo::exists(run.report);
    return cells << (hasReport ? Console::plainLine(run.report) : Nothing);
}

QJsonObject jsonOf(const RunHistory::Run& run)
{
    QJsonObject object = run.verdicts;
    object.insert(QStringLiteral("id"), run.id);
    object.insert(QStringLiteral("finished"), run.finished.toUTC().toString(Qt::ISODateWithMs));
    object.insert(QStringLiteral("platform"), run.platform);
    object.insert(QStringLiteral("outcome"), run.outcome);
    object.insert(QStringLiteral("report"), run.report);
    return object;
}

} // namespace

ExitCode HistoryCommand::run(const Options& options, const QString& language)
{
    QString problem;
    const std::vector<RunHistory::Run> runs = RunHistory(Folders::runs()).runs(&problem);
    if (!problem.isEmpty()) {
        Console::printError(problem);
        return ExitCode::BadInput;
    }
    if (options.isJson) {
        QJsonArray array;
        for (const RunHistory::Run& run : runs) {
            array.append(jsonOf(run));
        }
        Console::print(Console::plainJson(QJsonDocument(array)));
        return ExitCode::AllPassed;
    }
    if (runs.empty()) {
        Console::print(qtTrId("ID_Host_History_None") + QLatin1Char('\n'));
        return ExitCode::AllPassed;
    }
    const ReportTexts texts(language);
    TextTable table;
    table.addRow(headOf(texts));
    for (const RunHistory::Run& run : runs) {
        table.addRow(cellsOf(run, texts));
    }
    Console::print(table.toText());
    return ExitCode::AllPassed;
}
