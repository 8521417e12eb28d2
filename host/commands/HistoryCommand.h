// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QString>

struct Options;

// Lists the runs of this user, the newest last.
namespace HistoryCommand {

ExitCode run(const Options& options, const QString& language);

} // namespace HistoryCommand
