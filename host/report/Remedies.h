// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// Finds why a check isn't passed, and what the user can do. The sentences are the texts of the
// causes (ReportWords); terminal, report and window show the same.
namespace Remedies {

struct Remedy
{
    CheckKind check = CheckKind::Network;
    Cause cause = Cause::Failed;
    QString device; // as of deviceAmong()
};

// The name of the check's device, foreign text, if the report has several checks of its kind; else
// empty.
QString deviceAmong(const Report& report, const ReportCheck& check);

// figures: what was measured, as the document of the run keeps it. The most telling cause first. A
// network that passed without a server has that as its cause.
std::vector<Cause> causesOf(const ReportCheck& check, const QJsonObject& figures);

std::vector<Remedy> of(const Report& report); // in the order of the checks
QString toText(const Report& report);         // for a terminal; empty if there is none

} // namespace Remedies
