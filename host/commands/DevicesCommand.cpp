// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/DevicesCommand.h"

#include "host/Console.h"
#include "host/DeviceSurvey.h"
#include "host/Folders.h"
#include "host/InstalledEngine.h"
#include "host/Options.h"
#include "host/TerminationSignals.h"

#include <QJsonDocument>

ExitCode DevicesCommand::run(const Options& options)
{
    const InstalledEngine installed(options, Folders::data());
    if (!installed.error().isEmpty()) {
        Console::printError(installed.error());
        return installed.errorCode();
    }
    const DeviceSurvey survey = DeviceSurvey::of(installed.engine());
    if (TerminationSignals::haveArrived()) {
        return ExitCode::LeftEarly; // half a list would look like all of it
    }
    Console::print(options.isJson ? Console::plainJson(QJsonDocument(survey.toJson()))
                                  : survey.toText());
    return survey.isServerMissing() ? ExitCode::Unavailable : ExitCode::AllPassed;
}
