// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

// The program as users start it, with a home of its own, and with calls to the system that fail as
// the test asks (tests/support/faults).
class ProgramRun
{
public:
    struct Result
    {
        int code = -1; // the exit code; -1 after a crash, or if it didn't end in time
        bool isEndedBySignal = false; // one that asks a program to end, and that it doesn't handle
        QString out;
        QString error;
        qint64 ms = 0; // since start() or signal()
    };

    explicit ProgramRun(const QString& home);
    ~ProgramRun(); // kills it if it still runs

    void setVariable(const char* name, const QString& value);
    void setFault(const char* name, const QString& value); // such as FAULT_SYNC_MS
    void addPreload(const QString& library);
    void setWrapper(const QString& script); // of bash, which runs the program as "$0" "$@"

    void start(const QStringList& arguments);
    bool catchesSignals(); // waits until it has its own handlers
    bool hasPrinted(const QByteArray& text);
    void signal(int number);
    Result finish(int timeoutMs = 20000);

private:
    QString m_home;
    QProcessEnvironment m_environment;
    QStringList m_preloads;
    QString m_wrapper;
    QProcess m_process;
    QByteArray m_printed;
    qint64 m_startedAtMs = 0;
};
