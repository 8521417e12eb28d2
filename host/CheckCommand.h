// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"
#include "host/Options.h"

// The command without a name: opens the check, then says what came of it. GUI thread only.
class CheckCommand
{
public:
    explicit CheckCommand(const Options& options);

    ExitCode run(); // returns when the dialog is closed and all is written

private:
    const Options m_options;
};
