// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <private/qabstracttestlogger_p.h>

#include <QStringList>

// Fails the running test function at every warning, critical message and QTest::qWarn() that it did
// not announce by QTest::ignoreMessage(). It listens as a logger of QtTest: loggers get only the
// messages that ignoreMessage() has not taken, on the thread that sent them.
class WarningGuard : public QAbstractTestLogger
{
public:
    WarningGuard();

    void enterTestFunction(const char* function) override;
    void leaveTestFunction() override;
    void addIncident(IncidentTypes type, const char* description, const char* file,
                     int line) override;
    void addBenchmarkResult(const QBenchmarkResult& result) override;
    void addMessage(MessageTypes type, const QString& message, const char* file, int line) override;

private:
    bool isLetThrough(const QString& message) const;

    QStringList m_letThrough;
};
