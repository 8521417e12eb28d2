// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/CheckCommand.h"

#include "host/CheckRun.h"
#include "host/Console.h"
#include "host/InstalledEngine.h"
#include "host/Languages.h"
#include "host/RunOutcome.h"

#include "host/tour/Tour.h"
#include "platform/scripted/ScriptedEngine.h"

#include <QDir>
#include <QStandardPaths>

CheckCommand::CheckCommand(const Options& options) : m_options(options)
{
}

ExitCode CheckCommand::run()
{
    Languages languages;
    const QString languageProblem = languages.use(m_options.language);
    if (!languageProblem.isEmpty()) {
        Console::printError(languageProblem);
        return m_options.language.isEmpty() ? ExitCode::Unavailable : ExitCode::WrongUsage;
    }
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    InstalledEngine installed(m_options, dataFolder);
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    if (!m_options.tourFolder.isEmpty() && !QDir().mkpath(m_options.tourFolder)) {
        Console::printError(QStringLiteral("--tour %1: this folder can't be made; name another one")
                                .arg(m_options.tourFolder));
        return ExitCode::CannotWrite;
    }
    installed.prepare();
    std::unique_ptr<Tour> tour = startTour(installed.engine());
    CheckRun run;
    run.exec();
    const RunOutcome outcome = RunOutcome::fromDocument(installed.results(), run.wasPutOut());
    Console::print(outcome.toText());
    return tour ? endTour(*tour, languages.current(), outcome.exitCode) : outcome.exitCode;
}

std::unique_ptr<Tour> CheckCommand::startTour(Platform::Engine& engine) const
{
    if (m_options.tourFolder.isEmpty()) {
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
        Console::printError(QStringLiteral("%1: %2; name another folder").arg(folder, error));
        return ExitCode::CannotWrite;
    }
    Console::print(QStringLiteral("%1 pictures stand in %2; index.html shows them all.\n")
                       .arg(QString::number(tour.pictureCount()), folder));
    for (const QString& problem : tour.problems()) {
        Console::printError(problem);
    }
    return tour.problems().isEmpty() ? outcome : ExitCode::TourProblems;
}
