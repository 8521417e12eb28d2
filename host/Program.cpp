// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Program.h"

#include "host/Console.h"
#include "host/Options.h"
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
#include <QLoggingCategory>
#include <cstdio>
#include <memory>

namespace {

// Balloons are top-level windows: they take this size and no page's.
constexpr int FontPixelSize = 12;

// Warnings of the engine are for users, those of Qt for developers.
const char* const QuietRules =
    "*.debug=false\n*.info=false\n*.warning=false\nengine.*.warning=true";

void useLookOfCheck()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/envcheck.svg")));
    QFont font = QApplication::font();
    font.setPixelSize(FontPixelSize);
    QApplication::setFont(font);
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
    const bool isCheck = options.command == Options::Command::Check;
    if (isCheck && !System::hasDisplay()) {
        Console::printError(QStringLiteral("there is no display to open the check on: start it "
                                           "from a desktop session, or by xvfb-run"));
        return ExitCode::Unavailable;
    }
    if (!options.isVerbose) {
        QLoggingCategory::setFilterRules(QLatin1String(QuietRules));
    }
    QCoreApplication::setApplicationName(QStringLiteral("envcheck"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ENVCHECK_VERSION));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Qt has its own --platform option, so it sees only the name of the program.
    int shownCount = 1;
    std::unique_ptr<QCoreApplication> application;
    if (isCheck) {
        application = std::make_unique<QApplication>(shownCount, argv);
        QGuiApplication::setDesktopFileName(QStringLiteral("envcheck"));
        useLookOfCheck();
    } else {
        application = std::make_unique<QCoreApplication>(shownCount, argv);
    }
    const TerminationSignals signals;
    const ExitCode code = runCommand(options);
    if (std::ferror(stdout) != 0) {
        Console::printError(QStringLiteral("the output can't be written; is the disk full?"));
        return ExitCode::CannotWrite;
    }
    return code;
}
