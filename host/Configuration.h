// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExitCode.h"

#include <QMap>
#include <QString>
#include <QStringList>

struct Options;

// What is set once for all runs: the files of the user and of the system, and the environment.
class Configuration
{
public:
    static constexpr const char* ServerVariable = "ENVCHECK_SERVER";

    // The files, the most important one first. A file that isn't there says nothing.
    explicit Configuration(const QStringList& files);
    static QStringList usualFiles(); // the user's, then the system's

    // Fills in what the command line leaves open. Reads a file only if something is still open.
    void complete(Options& options);

    // Empty, or one line that names the file or the variable, the key and the remedy.
    QString error() const { return m_error; }
    ExitCode errorCode() const { return m_errorCode; }

private:
    struct Value
    {
        QString text;
        QString file; // where it was found; empty: nowhere
    };

    void completeToken(Options& options);
    Value find(const QString& key);
    const QMap<QString, QString>& contentOf(const QString& file);
    QMap<QString, QString> read(const QString& file);
    void fail(ExitCode code, const QString& line);

    QStringList m_files;
    QMap<QString, QMap<QString, QString>> m_contents; // by file
    QString m_error;
    ExitCode m_errorCode = ExitCode::AllPassed;
};
