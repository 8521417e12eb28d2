// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"
#include "host/report/Report.h"

#include <QJsonObject>
#include <QString>
#include <vector>

// One row of the result: a check, the verdict that the dialog showed last, and its device.
struct CheckOutcome
{
    CheckKind check = CheckKind::Network;
    Verdict verdict = Verdict::NotTested;
    QString device; // its name, or the figures of the network; foreign text
};

// The result of a run, from the document that the run recorded.
struct RunOutcome
{
    ExitCode exitCode = ExitCode::LeftEarly;
    std::vector<CheckOutcome> checks;

    // wasPutOut: the engine ended the session.
    static RunOutcome fromDocument(const QJsonObject& document, bool wasPutOut);

    // With the names that the report has: they may be redacted.
    RunOutcome withDevicesOf(const Report& report) const;
    QString toText() const; // a table for a terminal; ends with a line feed
};
