// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/DeviceSurvey.h"
#include "host/report/Redaction.h"
#include "host/report/Report.h"

#include <QByteArray>

// What developers ask for if a machine behaves oddly, in one archive: report.json, devices.json,
// versions.json and log.txt.
struct Diagnosis
{
    DeviceSurvey devices;
    Report report; // not yet redacted
    QByteArray log;

    // The archive, with nothing in it that the redaction leaves out. In the log that is every
    // mention of devices, accounts, servers, addresses, of the machine and the user's folder that
    // has three characters or more.
    QByteArray toZip(const Redaction& redaction) const;

private:
    QStringList privateTexts() const;
};
