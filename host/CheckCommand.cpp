// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/CheckCommand.h"

#include "host/CheckRun.h"
#include "host/Console.h"
#include "host/InstalledEngine.h"
#include "host/Languages.h"
#include "host/RunOutcome.h"

#include <QStandardPaths>

CheckCommand::CheckCommand(const Options& options) : m_options(options)
{
}

ExitCode CheckCommand::run()
{
    if (!m_options.tourFolder.isEmpty()) {
        Console::printError(QStringLiteral("--tour: this build has no guided tour"));
        return ExitCode::Unavailable;
    }
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
    installed.prepare();
    CheckRun run;
    run.exec();
    const RunOutcome outcome = RunOutcome::fromDocument(installed.results(), run.wasPutOut());
    Console::print(outcome.toText());
    return outcome.exitCode;
}
