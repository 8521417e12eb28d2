// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Injection.h"
#include "tests/host/ProgramRun.h"

#include <QTemporaryDir>

#include <memory>

// One check in the program itself, with a home of its own, which the preloaded user walks through.
class ProgramCheck
{
public:
    enum class Expect {
        Report,          // whole and with every answer
        ReportOrMessage, // or a message and an exit code that say why not
        Whole,           // every file that exists is whole; the program may be killed
    };

    explicit ProgramCheck(Injection& injection);
    // In a home that several share; number: of the check there.
    ProgramCheck(Injection& injection, const QString& home, int number);
    ~ProgramCheck();
    ProgramCheck(const ProgramCheck&) = delete;
    ProgramCheck& operator=(const ProgramCheck&) = delete;

    ProgramRun& program() { return *m_program; }
    QString home() const { return m_home; }
    QString dataFolder() const;
    QString reportFile() const { return file("report.json"); }

    void start(const QStringList& moreArguments = {});
    void startOnDevices(const QStringList& moreArguments = {}); // there are none
    // Waits for its end, and judges.
    void finish(Expect expected);
    void judge(const ProgramRun::Result& result, Expect expected);
    // For a home in which programs were killed.
    void expectNothingLeftByTheNextWrite();

private:
    void prepare();
    void judgeReport(const ProgramRun::Result& result, Expect expected);
    void judgeFolder(const ProgramRun::Result& result, Expect expected);
    QString leftover() const;
    QString file(const char* name) const;

    Injection& m_injection;
    std::unique_ptr<QTemporaryDir> m_own;
    QString m_home;
    int m_number = 0;
    QTemporaryDir m_answers; // outside the home, which faults hit
    std::unique_ptr<ProgramRun> m_program;
};
