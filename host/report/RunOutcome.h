// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QJsonObject>
#include <QString>
#include <vector>

// One row of the result: a check, its verdict and what was recorded of it.
struct CheckOutcome
{
    enum class Verdict { Passed, Failed, NotTested };

    QString key;  // "network", "camera", "speaker", "microphone"
    QString name; // translated
    Verdict verdict = Verdict::NotTested;
    QString device; // the device's name, or the figures of the network; foreign text
};

// What came of a run, read from the document that the run recorded.
struct RunOutcome
{
    ExitCode exitCode = ExitCode::LeftEarly;
    std::vector<CheckOutcome> checks;

    // wasPutOut: the engine ended the session.
    static RunOutcome fromDocument(const QJsonObject& document, bool wasPutOut);

    QString toText() const; // a table for a terminal, ending in a line feed
};
