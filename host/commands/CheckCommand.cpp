// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/CheckCommand.h"

#include "agent/EnvCheckAgent.h"
#include "host/Console.h"
#include "host/DisplayLoss.h"
#include "host/Folders.h"
#include "host/InstalledEngine.h"
#include "host/OutcomeWindow.h"
#include "host/ProgramEnd.h"
#include "host/TerminationSignals.h"
#include "host/report/OldReports.h"
#include "host/report/Remedies.h"
#include "host/report/ReportBuilder.h"
#include "host/report/ReportFile.h"
#include "host/report/ReportWriter.h"
#include "host/report/RunHistory.h"
#include "host/report/RunOutcome.h"
#include "host/tour/Tour.h"
#include "platform/backend/Engine.h"
#include "platform/backend/FileWriter.h"
#include "platform/backend/WholeFile.h"
#include "platform/scripted/ScriptedEngine.h"

#include <CoreEngine/CoreEngine.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <algorithm>

namespace {

// Returns when the dialog is closed. Sets wasPutOut as soon as the engine ends the session.
void runDialog(bool& wasPutOut)
{
    const QObject watcher;
    auto* core = LumEngine::CoreEngine::instance();
    const auto putOut = [&wasPutOut] { wasPutOut = true; };
    QObject::connect(core, &LumEngine::CoreEngine::signalBasicBreakdown, &watcher, putOut);
    QObject::connect(core, &LumEngine::CoreEngine::signalKickout, &watcher, putOut);
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();
}

} // namespace

CheckCommand::CheckCommand(const Options& options) : m_options(options)
{
}

ExitCode CheckCommand::run(const QString& language)
{
    if (!prepareTour() || !prepareFiles() || !prepareRedaction()) {
        return ExitCode::CannotWrite;
    }
    return open(language);
}

bool CheckCommand::prepareTour()
{
    const QString folder = m_options.tourFolder;
    if (folder.isEmpty() || QDir().mkpath(folder)) {
        return true;
    }
    Console::printError(qtTrId("ID_Host_Tour_NoFolder").arg(folder));
    return false;
}

// Tries a named file before the user spends time on the check. Doesn't try the default place: a run
// without a report is better than no run.
bool CheckCommand::prepareFiles()
{
    for (const QString& file : {m_options.resultsFile, m_options.reportFile}) {
        const QString problem = problemOfWritingTo(file);
        if (!problem.isEmpty()) {
            Console::printError(problem);
            return false;
        }
    }
    m_reportFile = m_options.reportFile;
    if (m_reportFile.isEmpty() && isTour()) {
        m_reportFile = m_options.tourFolder + QStringLiteral("/report.html");
    } else if (m_reportFile.isEmpty()) {
        const QString name =
            QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss-zzz"));
        m_reportFile = QStringLiteral("%1/%2.json").arg(Folders::reports(), name);
    }
    if (isTour()) {
        return true;
    }
    Folders::makeReports();
    const QString wrong = Platform::WholeFile::problem(Folders::runs());
    if (!wrong.isEmpty()) {
        Console::printError(qtTrId("ID_Host_File_NotWritten").arg(Folders::runs(), wrong));
    }
    return wrong.isEmpty();
}

bool CheckCommand::prepareRedaction()
{
    QString problem;
    m_redaction = Redaction::withKeyIn(Folders::redactionKey(), m_options.redaction, &problem);
    if (!m_redaction) {
        Console::printError(problem);
    }
    return m_redaction.has_value();
}

ExitCode CheckCommand::open(const QString& language)
{
    ProgramEnd::cancel();
    InstalledEngine installed(m_options, Folders::data());
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    ReportBuilder::Run facts{QDateTime::currentDateTime(),
                             {},
                             language,
                             m_options.platform,
                             QFileInfo(m_options.scenario).completeBaseName()};
    if (!installed.prepare()) {
        return ExitCode::LeftEarly;
    }
    const std::unique_ptr<Tour> tour = startTour(installed.engine());
    bool wasPutOut = false;
    bool isWritten = true;
    RunOutcome outcome;
    Report shown;
    const auto save = [&] {
        ProgramEnd::begin();
        facts.finished = QDateTime::currentDateTime();
        const QJsonObject results = installed.results();
        outcome = RunOutcome::fromDocument(results, wasPutOut);
        shown = m_redaction->redacted(
            ReportBuilder::build(facts, results, outcome, installed.engine().systemFacts()));
        RunHistory(Folders::runs()).compare(shown);
        print(outcome.withDevicesOf(shown).toText() + Remedies::toText(shown));
        isWritten = write(shown);
        isWritten = writeResults(m_redaction->redactedResults(results)) && isWritten;
        // A tour is no run of a user.
        if (!isTour()) {
            installed.post(shown);
        }
    };
    DisplayLoss::setSaving(save);
    runDialog(wasPutOut);
    DisplayLoss::setSaving(nullptr);
    save();
    const ExitCode code = tour ? endTour(*tour, language, outcome.exitCode) : outcome.exitCode;
    if (!TerminationSignals::haveArrived() && opensWindow(m_options, outcome)) {
        ProgramEnd::cancel();
        OutcomeWindow(shown).exec();
    }
    return isWritten ? code : ExitCode::CannotWrite;
}

bool CheckCommand::opensWindow(const Options& options, const RunOutcome& outcome)
{
    const bool isOfUser = options.platform == Options::Platform::Devices && !options.isQuiet &&
                          options.tourFolder.isEmpty();
    const bool hasFailure =
        std::any_of(outcome.checks.begin(), outcome.checks.end(),
                    [](const CheckOutcome& check) { return check.verdict == Verdict::Failed; });
    return isOfUser && hasFailure && outcome.exitCode != ExitCode::PutOut;
}

// If a document goes to standard output, nothing else does.
void CheckCommand::print(const QString& text) const
{
    if (m_options.usesOutput()) {
        Console::printAside(text);
    } else {
        Console::print(text);
    }
}

QString CheckCommand::problemOfWritingTo(const QString& place)
{
    const bool isFile = !place.isEmpty() && place != Options::Output;
    return isFile ? ReportFile::problemOfWriting(place) : QString();
}

// Returns one line if it can't be written.
QString CheckCommand::writeTo(const QString& place, const QByteArray& content)
{
    if (place == Options::Output) {
        Console::print(QString::fromUtf8(content));
        return {};
    }
    return ReportFile::write(place, content, ProgramEnd::remainingMs());
}

bool CheckCommand::writeResults(const QJsonObject& results) const
{
    if (m_options.resultsFile.isEmpty()) {
        return true;
    }
    const QString problem =
        writeTo(m_options.resultsFile, Console::plainJson(QJsonDocument(results)).toUtf8());
    if (!problem.isEmpty()) {
        Console::printError(problem);
    }
    return problem.isEmpty();
}

// Adds the run to the history, and removes the reports that are too old.
void CheckCommand::remember(const Report& report, bool isWritten) const
{
    const RunHistory history(Folders::runs());
    const bool isFile = isWritten && m_reportFile != Options::Output;
    history.append(report, isFile ? QFileInfo(m_reportFile).absoluteFilePath() : QString());
    Platform::FileWriter::enqueue([history, folder = Folders::reports()] {
        QString problem; // without the runs, the order of the names counts
        QStringList reports;
        for (const RunHistory::Run& run : history.runs(&problem)) {
            reports << run.report;
        }
        for (const QString& old : OldReports::of(folder, reports, QDateTime::currentDateTime())) {
            QFile::remove(old);
        }
    });
}

bool CheckCommand::write(const Report& report) const
{
    const QString problem =
        writeTo(m_reportFile, ReportWriter::toFormat(report, ReportWriter::formatOf(m_reportFile),
                                                     report.language));
    // A tour is no run of a user.
    if (!isTour()) {
        remember(report, problem.isEmpty());
    }
    if (!problem.isEmpty()) {
        Console::printError(problem);
        return false;
    }
    if (m_reportFile != Options::Output) {
        const bool isPlain = m_options.redaction == Options::Redaction::None;
        const QString place = isPlain ? m_reportFile : Folders::shortened(m_reportFile);
        print(qtTrId("ID_Host_ReportIsIn").arg(place) + QLatin1Char('\n'));
    }
    return true;
}

std::unique_ptr<Tour> CheckCommand::startTour(Platform::Engine& engine) const
{
    if (!isTour()) {
        return nullptr;
    }
    auto* scripted = dynamic_cast<Platform::ScriptedEngine*>(&engine);
    const bool hasStates =
        scripted && m_options.scenario == QLatin1String(Options::DefaultScenario);
    auto tour = std::make_unique<Tour>(m_options.tourFolder,
                                       hasStates ? TourScript::walkWithStates(*scripted)
                                                 : TourScript::walk(scripted));
    tour->start();
    return tour;
}

ExitCode CheckCommand::endTour(Tour& tour, const QString& language, ExitCode outcome) const
{
    const QString folder = QDir(m_options.tourFolder).absolutePath();
    QString error;
    if (!tour.finish(QStringLiteral("envcheck (%1)").arg(language), &error)) {
        Console::printError(qtTrId("ID_Host_Tour_NotWritten").arg(folder, error));
        return ExitCode::CannotWrite;
    }
    print(qtTrId("ID_Host_Tour_Done").arg(QString::number(tour.pictureCount()), folder) +
          QLatin1Char('\n'));
    for (const QString& problem : tour.problems()) {
        Console::printError(problem);
    }
    return tour.problems().isEmpty() ? outcome : ExitCode::TourProblems;
}
