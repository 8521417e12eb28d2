// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Program.h"

#include "host/Configuration.h"
#include "host/Console.h"
#include "host/DisplayLoss.h"
#include "host/DisplayOpening.h"
#include "host/EarlyTexts.h"
#include "host/Languages.h"
#include "host/Options.h"
#include "host/ProgramEnd.h"
#include "host/ProgramLook.h"
#include "host/ReportToken.h"
#include "host/ScreenFit.h"
#include "host/System.h"
#include "host/TerminationSignals.h"
#include "host/commands/CheckCommand.h"
#include "host/commands/DevicesCommand.h"
#include "host/commands/HistoryCommand.h"
#include "host/commands/NetworkCommand.h"
#include "host/commands/ReportCommand.h"
#include "host/commands/ServeCommand.h"
#include "host/commands/UnattendedCommand.h"

#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <memory>

namespace {

// Nothing is drawn by OpenGL here. Its drivers take longer to load than Qt itself.
const char* const OpenGlVariable = "QT_XCB_GL_INTEGRATION";

std::unique_ptr<QCoreApplication> applicationWithWindows(int& argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet(OpenGlVariable)) {
        qputenv(OpenGlVariable, "none");
    }
    auto application = std::make_unique<QApplication>(argc, argv);
    if (ScreenFit::hasLoweredFactor()) {
        application.reset();
        application = std::make_unique<QApplication>(argc, argv);
    }
    QGuiApplication::setDesktopFileName(QStringLiteral("envcheck"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/envcheck.svg")));
    ProgramLook::use();
    return application;
}

// Prints a message if what is set once for all runs can't be used.
ExitCode configure(Options& options)
{
    const bool isUsed =
        options.command == Options::Command::Check || options.command == Options::Command::Network;
    if (!isUsed) {
        return ExitCode::AllPassed;
    }
    Configuration configuration(Configuration::usualFiles());
    configuration.complete(options);
    if (!configuration.error().isEmpty()) {
        Console::printError(configuration.error());
        return configuration.errorCode();
    }
    const ReportToken token(options);
    ReportToken::hideVariable();
    if (!token.error().isEmpty()) {
        Console::printError(token.error());
    }
    options.reportToken = token.value();
    return token.errorCode();
}

ExitCode runCommand(const Options& options, const QString& language)
{
    switch (options.command) {
    case Options::Command::Version:
        Console::print(QStringLiteral("envcheck %1\n").arg(QCoreApplication::applicationVersion()));
        return ExitCode::AllPassed;
    case Options::Command::Help:
        Console::print(Options::helpText(options.helpFor));
        return ExitCode::AllPassed;
    case Options::Command::Check:
        return options.isUnattended ? UnattendedCommand(options).run(language)
                                    : CheckCommand(options).run(language);
    case Options::Command::Devices:
        return DevicesCommand::run(options);
    case Options::Command::Network:
        return NetworkCommand::run(options);
    case Options::Command::Serve:
        return ServeCommand::run(options);
    case Options::Command::History:
        return HistoryCommand::run(options, language);
    case Options::Command::Report:
        return ReportCommand::run(options, language);
    }
    return ExitCode::WrongUsage;
}

bool hasWindows(const Options& options)
{
    return options.command == Options::Command::Check && !options.isUnattended;
}

// Reads the options before the application object is made, which depends on them. For the dialog,
// also sets the line for a display that can't be opened: the texts aren't there later.
ExitCode readOptions(const QStringList& arguments, char* argv[], Options& options,
                     QString& displayProblem)
{
    const EarlyTexts texts(argv, Options::languageIn(arguments));
    if (texts.areMissing()) {
        Console::printError(texts.problem());
        return ExitCode::Unavailable;
    }
    options = Options::parse(arguments);
    const bool isHelp =
        options.command == Options::Command::Help || options.command == Options::Command::Version;
    const QString problem = options.error.isEmpty() && !isHelp ? texts.problem() : options.error;
    if (!problem.isEmpty()) {
        Console::printError(problem);
        return ExitCode::WrongUsage;
    }
    if (hasWindows(options)) {
        displayProblem = DisplayOpening::problem();
        if (!DisplayOpening::hasDisplay()) {
            Console::printError(displayProblem);
            return ExitCode::Unavailable;
        }
    }
    return configure(options);
}

// What only reads and prints has nothing to bring to an end: a signal ends it at once, also while a
// disk or the reader of the output keeps it waiting.
bool endsInOrder(Options::Command command)
{
    return command != Options::Command::Report && command != Options::Command::History;
}

// Ends the process while the texts are there.
[[noreturn]] void runWithTexts(const Options& options, const TerminationSignals* signals)
{
    Languages languages;
    languages.use(options.language); // readOptions() told of problems
    const ExitCode code = runCommand(options, languages.current());
    if (std::ferror(stdout) != 0 && !(signals && signals->hasTerminalClosed())) {
        Console::printError(qtTrId("ID_Host_OutputNotWritten"));
        ProgramEnd::leave(ExitCode::CannotWrite);
    }
    ProgramEnd::leave(code);
}

} // namespace

ExitCode Program::run(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("envcheck"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ENVCHECK_VERSION));
    // Texts need an application, which may need more files than there are: English it is.
    const QString limits = System::problemOfLimits();
    if (!limits.isEmpty()) {
        Console::printError(limits);
        return ExitCode::Unavailable;
    }
    Options options;
    QString displayProblem;
    const ExitCode readCode =
        readOptions(System::arguments(argc, argv), argv, options, displayProblem);
    if (readCode != ExitCode::AllPassed) {
        return readCode;
    }
    // Qt has its own --platform option, so it sees only the name of the program.
    int shownCount = 1;
    ScreenFit::takeFactorsAsTheyAre();
    const bool isCheck = hasWindows(options);
    const DisplayLoss displayLoss(options.isVerbose);
    auto opening = isCheck ? std::make_unique<DisplayOpening>(displayProblem) : nullptr;
    const std::unique_ptr<QCoreApplication> application =
        isCheck ? applicationWithWindows(shownCount, argv)
                : std::make_unique<QCoreApplication>(shownCount, argv);
    opening.reset();
    const auto signals =
        endsInOrder(options.command) ? std::make_unique<TerminationSignals>() : nullptr;
    runWithTexts(options, signals.get());
}
