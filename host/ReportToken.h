// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QByteArray>
#include <QString>

struct Options;

// The bearer token for the report server. It comes from a file or the environment, never from the
// command line, which every user of the machine can read.
class ReportToken
{
public:
    static constexpr const char* Variable = "ENVCHECK_REPORT_TOKEN";

    // Reads the file that the options name, or else the variable. Without an address to post to
    // there is no token. Waits for the disk.
    explicit ReportToken(const Options& options);

    // Takes the variable out of the environment, for whatever the process starts or prints.
    static void hideVariable();

    QByteArray value() const { return m_value; } // empty: none
    // Empty, or one line that names the file, the variable or the address, and the remedy. It has
    // nothing of the token.
    QString error() const { return m_error; }
    ExitCode errorCode() const { return m_errorCode; }

private:
    QString readFile(const QString& path);
    void fail(ExitCode code, const QString& line);

    QByteArray m_value;
    QString m_error;
    ExitCode m_errorCode = ExitCode::AllPassed;
};
