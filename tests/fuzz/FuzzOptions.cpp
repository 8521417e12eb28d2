// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Options.h"
#include "platform/backend/StunServer.h"
#include "platform/backend/WebAddress.h"
#include "tests/fuzz/FuzzInput.h"

// A command line, one argument in each line of the input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput::application();
    // With its size: Qt would end a plain byte array at the first zero.
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const QStringList arguments =
        QStringList{QStringLiteral("envcheck")} + text.split(QLatin1Char('\n'));
    Options::parse(arguments);
    Options::languageIn(arguments);
    const auto server = Platform::StunServer::fromText(text);
    FuzzInput::require(!server || (!server->host.isEmpty() && server->port != 0));
    Platform::webAddress(text);
    return 0;
}
