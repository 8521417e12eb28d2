// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

class QString;
struct Options;

// The command "report": shows reports of earlier runs. GUI thread only.
namespace ReportCommand {

ExitCode run(const Options& options, const QString& language);

} // namespace ReportCommand
