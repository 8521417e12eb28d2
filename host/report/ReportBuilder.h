// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"
#include "host/report/RunOutcome.h"

namespace Platform {
class SystemFacts;
}

// Makes the report of a run from the document that the run recorded.
namespace ReportBuilder {

struct Run
{
    QDateTime started;
    QDateTime finished;
    QString language;
    Options::Platform platform = Options::Platform::Devices;
    QString scenario;
};

// The document is a Platform::ResultDocument. RunHistory adds the changes later.
Report build(const Run& run, const QJsonObject& document, const RunOutcome& outcome,
             const Platform::SystemFacts& facts);

// Of a run without a person: with one check for each device.
Report build(const Run& run, RunEnd outcome, const std::vector<ReportCheck>& checks,
             const QJsonObject& networkFigures, const Platform::SystemFacts& facts);
// The figures that there are, and those that failed.
std::vector<Measurement> measuredOf(CheckKind check, const QJsonObject& figures);

} // namespace ReportBuilder
