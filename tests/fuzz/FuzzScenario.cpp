// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedEngine.h"
#include "tests/fuzz/FuzzInput.h"

using namespace Platform;

// A scenario that somebody wrote: read, and set up as far as that needs no event loop.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput::application();
    QString error;
    const std::optional<Scenario> scenario =
        Scenario::parse(FuzzInput::bytes(data, size), QStringLiteral("input"), &error);
    if (scenario) {
        const ScriptedEngine engine(*scenario);
    } else {
        FuzzInput::require(error.startsWith(QLatin1String("input:")));
    }
    return 0;
}
