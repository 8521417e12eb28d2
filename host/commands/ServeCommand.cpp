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
        Console::printError(QStringLiteral("UDP port %1 can't be answered on: %2. Choose another "
                                           "by --port")
                                .arg(options.port)
                                .arg(responder.errorString()));
        return ExitCode::Unavailable;
    }
    Console::print(QStringLiteral("Answering on UDP port %1. Other machines measure the way here "
                                  "by --server stun:HOST:%1\n")
                       .arg(port));
    QCoreApplication::exec();
    return ExitCode::AllPassed;
}
#else
ExitCode ServeCommand::run(const Options&)
{
    Console::printError(QStringLiteral("serve needs a program that was built with the real devices "
                                       "(ENVCHECK_DEVICES)"));
    return ExitCode::Unavailable;
}
#endif
