// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int ProgramMs = 30000;

struct Outcome
{
    int exitCode = -1;
    QByteArray log; // QtTest's own, as text
};

// The log goes through a file: under Wine a program's output does not arrive.
Outcome run(const QString& program, const QString& function)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("log.txt"));
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program,
                  {function, QStringLiteral("-o"), QDir::toNativeSeparators(file) + ",txt"});
    Outcome outcome;
    if (process.waitForFinished(ProgramMs) && process.exitStatus() == QProcess::NormalExit) {
        outcome.exitCode = process.exitCode();
    }
    QFile log(file);
    if (log.open(QIODevice::ReadOnly)) {
        outcome.log = log.readAll();
    }
    return outcome;
}

} // namespace

// Each function of guard/Warnings.cpp, with each of QtTest's three main functions.
class tst_WarningGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesWithout_data();
    void passesWithout();
    void failsAtStrayWarning_data();
    void failsAtStrayWarning();
    void readsMoreFromEnvironment();

private:
    static void addRows(const QStringList& functions);
};

void tst_WarningGuard::addRows(const QStringList& functions)
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("function");
    const QStringList programs{"warnings_MAIN", "warnings_GUILESS_MAIN", "warnings_APPLESS_MAIN"};
    for (const QString& program : programs) {
        for (const QString& function : functions) {
            QTest::addRow("%s %s", qPrintable(program), qPrintable(function))
                << program << function;
        }
    }
}

void tst_WarningGuard::passesWithout_data()
{
    addRows({"none", "debugAndInfo", "announced", "announcedInThread", "letThrough"});
}

void tst_WarningGuard::passesWithout()
{
    QFETCH(const QString, program);
    QFETCH(const QString, function);
    const Outcome outcome = run(program, function);
    QVERIFY2(outcome.exitCode == 0, outcome.log);
    QVERIFY2(outcome.log.contains("PASS   : Warnings::" + function.toLatin1() + "()"), outcome.log);
}

void tst_WarningGuard::failsAtStrayWarning_data()
{
    addRows({"stray", "strayCritical", "strayOfTest", "strayInThread", "strayBesideAnnounced",
             "announcedOnceSentTwice", "strayBesideLetThrough"});
}

void tst_WarningGuard::failsAtStrayWarning()
{
    QFETCH(const QString, program);
    QFETCH(const QString, function);
    const Outcome outcome = run(program, function);
    QVERIFY2(outcome.exitCode == 1, outcome.log);
    QVERIFY2(outcome.log.contains("FAIL!  : Warnings::" + function.toLatin1() +
                                  "() Unexpected warning: a stray message"),
             outcome.log);
}

void tst_WarningGuard::readsMoreFromEnvironment()
{
    qputenv("ENVCHECK_EXPECTED_WARNINGS", "something else\na stray\n");
    const Outcome outcome = run(QStringLiteral("warnings_MAIN"), QStringLiteral("stray"));
    QVERIFY2(outcome.exitCode == 0, outcome.log);
}

QTEST_GUILESS_MAIN(tst_WarningGuard)
#include "tst_WarningGuard.moc"
