// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"
#include "host/report/RunOutcome.h"

namespace Platform {
class SystemFacts;
}

// Makes the report of a run from what the run recorded.
namespace ReportBuilder {

struct Run
{
    QDateTime started;
    QDateTime finished;
    QString language;
    Options::Platform platform = Options::Platform::Devices;
    QString scenario;
};

// document: see Platform::ResultDocument. Without changes; those come from the run history.
Report build(const Run& run, const QJsonObject& document, const RunOutcome& outcome,
             const Platform::SystemFacts& facts);

} // namespace ReportBuilder
