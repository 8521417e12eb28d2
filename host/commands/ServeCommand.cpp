// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/ServeCommand.h"

#include "host/Console.h"
#include "host/Options.h"
#ifdef ENVCHECK_WITH_DEVICES
#include "platform/devices/network/StunResponder.h"
#endif

#include <QCoreApplication>

#ifdef ENVCHECK_WITH_DEVICES
ExitCode ServeCommand::run(const Options& options)
{
    const Platform::StunResponder responder(QHostAddress::Any, options.port);
    const quint16 port = responder.server().port;
    if (port == 0) {
        Console::printError(
            qtTrId("ID_Host_Serve_NoPort").arg(options.port).arg(responder.errorString()));
        return ExitCode::Unavailable;
    }
    Console::print(qtTrId("ID_Host_Serve_Answering").arg(port) + QLatin1Char('\n'));
    QCoreApplication::exec();
    return ExitCode::AllPassed;
}
#else
ExitCode ServeCommand::run(const Options&)
{
    Console::printError(qtTrId("ID_Host_Serve_NotBuilt"));
    return ExitCode::Unavailable;
}
#endif
