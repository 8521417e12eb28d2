// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/ProgramFaults.h"

#include "tests/campaign/ProgramCheck.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

using Expect = ProgramCheck::Expect;
using Checks = std::vector<std::unique_ptr<ProgramCheck>>;

constexpr int AtOnce = 4;
constexpr int SuspendedMs = 5000;
constexpr int SecondsOfYear = 365 * 24 * 3600;

void finish(Checks& checks, Expect expected)
{
    for (const std::unique_ptr<ProgramCheck>& check : checks) {
        check->finish(expected);
    }
}

// A few checks, in each of which another call fails: one, or all from there on, or every k-th.
void failCalls(Injection& injection, const char* variable, int most, bool isOwn)
{
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        const char* const rests[] = {"", "+", "*"};
        const int number = injection.random(1, most);
        const char* const rest = rests[injection.random(0, number > 1 ? 2 : 1)];
        ProgramRun& program = checks.back()->program();
        program.setFault(variable, QString::number(number) + QLatin1String(rest));
        if (isOwn) {
            program.setVariable("FAULT_UNDER", checks.back()->home());
        }
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::ReportOrMessage);
}

} // namespace

void ProgramFaults::open(Injection& injection)
{
    failCalls(injection, "FAULT_OPEN", 20, true);
}

// Fonts, texts, plug-ins and what libraries look for.
void ProgramFaults::openAny(Injection& injection)
{
    failCalls(injection, "FAULT_OPEN", 200, false);
}

void ProgramFaults::read(Injection& injection)
{
    failCalls(injection, "FAULT_READ", 10, true);
}

void ProgramFaults::write(Injection& injection)
{
    failCalls(injection, "FAULT_WRITE", 20, true);
}

void ProgramFaults::sync(Injection& injection)
{
    failCalls(injection, "FAULT_SYNC", 20, true);
}

void ProgramFaults::rename(Injection& injection)
{
    failCalls(injection, "FAULT_RENAME", 20, true);
}

void ProgramFaults::memory(Injection& injection)
{
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        ProgramRun& program = checks.back()->program();
        program.addPreload(QStringLiteral(ENVCHECK_MEMORY_FAULTS));
        program.setVariable("FAULT_MEMORY", QString::number(injection.random(1, 40)));
        program.setVariable("FAULT_MEMORY_BYTES", QStringLiteral("1000000"));
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::ReportOrMessage);
}

void ProgramFaults::thread(Injection& injection)
{
    failCalls(injection, "FAULT_THREAD", 8, false);
}

void ProgramFaults::descriptor(Injection& injection)
{
    failCalls(injection, "FAULT_SOCKET", 8, false);
}

void ProgramFaults::slowDisk(Injection& injection)
{
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        checks.back()->program().setFault("FAULT_SYNC_MS",
                                          QString::number(injection.random(100, 2000)));
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::ReportOrMessage);
}

// From some write on, there is no space left.
void ProgramFaults::fullDisk(Injection& injection)
{
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        ProgramRun& program = checks.back()->program();
        program.setFault("FAULT_WRITE", QStringLiteral("%1+").arg(injection.random(1, 12)));
        program.setVariable("FAULT_UNDER", checks.back()->home());
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::ReportOrMessage);
}

void ProgramFaults::fullTemporaryFolder(Injection& injection)
{
    ProgramCheck check(injection);
    const QTemporaryDir folder;
    check.program().setFault("FAULT_WRITE", QStringLiteral("1+"));
    check.program().setVariable("FAULT_UNDER", folder.path());
    check.program().setVariable("TMPDIR", folder.path());
    check.start();
    injection.count(1);
    // The scripted devices keep their settings there, and say so.
    check.finish(Expect::ReportOrMessage);
    injection.require(QFile::exists(check.reportFile()), QStringLiteral("there is no report"));
}

// In place of a file that the program reads or writes.
void ProgramFaults::pipes(Injection& injection)
{
    ProgramCheck check(injection);
    const QString paths[] = {check.dataFolder() + QStringLiteral("/runs.jsonl"), check.reportFile(),
                             check.dataFolder() + QStringLiteral("/redaction.key"),
                             check.dataFolder() + QStringLiteral("/reports")};
    const QString path = paths[injection.random(0, 3)];
    QFile::remove(path);
    injection.require(mkfifo(QFile::encodeName(path).constData(), 0600) == 0,
                      QStringLiteral("no pipe"));
    check.start({QStringLiteral("--redact"), QStringLiteral("hash")});
    injection.count(1);
    const ProgramRun::Result result = check.program().finish();
    injection.require(result.code >= 0,
                      QStringLiteral("crash or hang with a pipe as %1").arg(path));
    injection.require(!result.error.contains(QLatin1String("Sanitizer")), result.error);
}

// Before it has handlers, the signal itself ends the program; after that it writes a report.
void ProgramFaults::earlySignal(Injection& injection)
{
    constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};
    constexpr int FirstSecondMs = 1000;
    for (int i = 0; i < AtOnce; ++i) {
        ProgramCheck check(injection);
        check.start();
        QTest::qWait(injection.random(0, FirstSecondMs));
        check.program().signal(Signals[injection.random(0, 2)]);
        injection.count(1);
        check.finish(Expect::Whole);
    }
}

void ProgramFaults::killWhileWriting(Injection& injection)
{
    const QTemporaryDir home;
    constexpr int LatestMs = 3500;
    constexpr int WriteMs = 50;
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection, home.path(), i));
        ProgramRun& program = checks.back()->program();
        program.setFault("FAULT_WRITE_MS", QString::number(WriteMs));
        program.setVariable("FAULT_UNDER", home.path());
        checks.back()->start();
    }
    QTest::qWait(injection.random(0, LatestMs));
    for (const std::unique_ptr<ProgramCheck>& check : checks) {
        QTest::qWait(injection.random(0, LatestMs / AtOnce));
        check->program().signal(SIGKILL);
        injection.count(1);
        check->finish(Expect::Whole);
    }
    checks.front()->expectNothingLeftByTheNextWrite();
}

// Forth and back, by seconds and by years.
void ProgramFaults::clockJump(Injection& injection)
{
    constexpr int Jumps[] = {-SecondsOfYear, -3600, -2, 2, 3600, SecondsOfYear};
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        ProgramRun& program = checks.back()->program();
        program.setFault("FAULT_CLOCK_S", QString::number(Jumps[injection.random(0, 5)]));
        program.setVariable("FAULT_CLOCK_MS", QString::number(injection.random(0, 2500)));
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::Report);
}

void ProgramFaults::suspend(Injection& injection)
{
    constexpr int LatestMs = 1500;
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection));
        checks.back()->start();
        QTest::qWait(injection.random(0, LatestMs / AtOnce));
    }
    QTest::qWait(injection.random(0, LatestMs));
    for (const int number : {SIGSTOP, SIGCONT}) {
        for (const std::unique_ptr<ProgramCheck>& check : checks) {
            check->program().signal(number);
        }
        QTest::qWait(number == SIGSTOP ? SuspendedMs : 0);
    }
    injection.count(AtOnce);
    finish(checks, Expect::Report);
}

// One history, settings and reports folder for all.
void ProgramFaults::sharedStore(Injection& injection)
{
    const QTemporaryDir home;
    Checks checks;
    for (int i = 0; i < AtOnce; ++i) {
        checks.push_back(std::make_unique<ProgramCheck>(injection, home.path(), i));
        checks.back()->start();
        injection.count(1);
    }
    finish(checks, Expect::Report);
}
