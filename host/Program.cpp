// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Program.h"

#include "host/Console.h"
#include "host/DisplayLoss.h"
#include "host/DisplayTrial.h"
#include "host/Options.h"
#include "host/ProgramEnd.h"
#include "host/ScreenFit.h"
#include "host/System.h"
#include "host/TerminationSignals.h"
#include "host/commands/CheckCommand.h"
#include "host/commands/DevicesCommand.h"
#include "host/commands/NetworkCommand.h"
#include "host/commands/ReportCommand.h"
#include "host/commands/ServeCommand.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <cstdio>
#include <memory>

namespace {

// Balloons are top-level windows: they take this size and no page's.
constexpr int FontPixelSize = 12;

void useLookOfCheck()
{
    QGuiApplication::setDesktopFileName(QStringLiteral("envcheck"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/envcheck.svg")));
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
}

std::unique_ptr<QCoreApplication> applicationWithWindows(int& argc, char* argv[])
{
    auto application = std::make_unique<QApplication>(argc, argv);
    if (ScreenFit::hasLoweredFactor()) {
        application.reset();
        application = std::make_unique<QApplication>(argc, argv);
    }
    useLookOfCheck();
    return application;
}

ExitCode runCommand(const Options& options)
{
    switch (options.command) {
    case Options::Command::Version:
        Console::print(QStringLiteral("envcheck %1\n").arg(QCoreApplication::applicationVersion()));
        return ExitCode::AllPassed;
    case Options::Command::Help:
        Console::print(Options::helpText(options.helpFor));
        return ExitCode::AllPassed;
    case Options::Command::Check:
        return CheckCommand(options).run();
    case Options::Command::Devices:
        return DevicesCommand::run(options);
    case Options::Command::Network:
        return NetworkCommand::run(options);
    case Options::Command::Serve:
        return ServeCommand::run(options);
    case Options::Command::Report:
        return ReportCommand::run(options);
    }
    return ExitCode::WrongUsage;
}

} // namespace

ExitCode Program::run(int argc, char* argv[])
{
    const Options options = Options::parse(System::arguments(argc, argv));
    if (!options.error.isEmpty()) {
        Console::printError(options.error);
        return ExitCode::WrongUsage;
    }
    const QString limits = System::problemOfLimits();
    if (!limits.isEmpty()) {
        Console::printError(limits);
        return ExitCode::Unavailable;
    }
    // Qt has its own --platform option, so it sees only the name of the program.
    int shownCount = 1;
    QCoreApplication::setApplicationName(QStringLiteral("envcheck"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ENVCHECK_VERSION));
    ScreenFit::takeFactorsAsTheyAre();
    const bool isCheck = options.command == Options::Command::Check;
    auto trial = isCheck ? std::make_unique<DisplayTrial>(shownCount, argv) : nullptr;
    if (trial && !trial->problem().isEmpty()) {
        Console::printError(trial->problem());
        return ExitCode::Unavailable;
    }
    const DisplayLoss displayLoss(options.isVerbose);
    const std::unique_ptr<QCoreApplication> application =
        isCheck ? applicationWithWindows(shownCount, argv)
                : std::make_unique<QCoreApplication>(shownCount, argv);
    trial.reset();
    const TerminationSignals signals;
    const ExitCode code = runCommand(options);
    if (std::ferror(stdout) != 0 && !signals.hasTerminalClosed()) {
        Console::printError(QStringLiteral("the output can't be written; is the disk full?"));
        ProgramEnd::leave(ExitCode::CannotWrite);
    }
    ProgramEnd::leave(code);
}
