// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ProgramEnd.h"
#include "tests/host/ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>

// How the program ends if the disk, a name server or the system fail it.
class tst_ProgramEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void slowDisk_data();
    void slowDisk();
    void deadDisk();

private:
    QString file(const char* name) const { return m_home->filePath(QLatin1String(name)); }
    QString dataFolder() const { return file(".local/share/envcheck"); }
    QString scenario(int endsAtMs) const; // puts the user out then

    std::unique_ptr<QTemporaryDir> m_home;
};

namespace {

// Beside the budget: for a program that starts and ends on a busy machine.
constexpr int SlackMs = 4000;
constexpr int ScenarioMs = 3000;

} // namespace

void tst_ProgramEnd::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

QString tst_ProgramEnd::scenario(int endsAtMs) const
{
    QFile scenario(file("scenario.json"));
    if (scenario.open(QIODevice::WriteOnly)) {
        scenario.write(QStringLiteral("{ \"base\": \"all-well\", \"timeline\": [ { \"atMs\": %1, "
                                      "\"event\": \"kickOut\" } ] }")
                           .arg(endsAtMs)
                           .toUtf8());
    }
    return scenario.fileName();
}

void tst_ProgramEnd::slowDisk_data()
{
    QTest::addColumn<int>("syncMs");
    QTest::newRow("fast") << 0;
    QTest::newRow("0.3 s") << 300;
    QTest::newRow("1.5 s") << 1500;
}

// Every value is another rewrite of the results, and only the last one counts.
void tst_ProgramEnd::slowDisk()
{
    QFETCH(int, syncMs);
    ProgramRun run(m_home->path());
    run.setFault("FAULT_SYNC_MS", QString::number(syncMs));
    run.start({QStringLiteral("--scenario"), scenario(ScenarioMs), QStringLiteral("--report"),
               file("report.json"), QStringLiteral("--results"), file("results.json")});
    const ProgramRun::Result result = run.finish();
    QVERIFY2(result.ms < ScenarioMs + ProgramEnd::BudgetMs + SlackMs,
             qPrintable(QString::number(result.ms)));
    QVERIFY2(result.code == 3 || (syncMs > 1000 && result.code == 73), qPrintable(result.error));
    for (const char* name : {"report.json", "results.json"}) {
        QFile written(file(name));
        QVERIFY2(written.open(QIODevice::ReadOnly) && written.size() > 100, name);
    }
}

void tst_ProgramEnd::deadDisk()
{
    ProgramRun run(m_home->path());
    run.setFault("FAULT_SYNC_MS", QStringLiteral("60000"));
    run.start({QStringLiteral("--scenario"), scenario(ScenarioMs), QStringLiteral("--report"),
               file("report.json"), QStringLiteral("--results"), file("results.json")});
    const ProgramRun::Result result = run.finish();
    QVERIFY2(result.ms < ScenarioMs + ProgramEnd::BudgetMs + SlackMs,
             qPrintable(QString::number(result.ms)));
    QCOMPARE(result.code, 73);
    for (const char* name : {"report.json", "results.json", "runs.jsonl"}) {
        QVERIFY2(result.error.contains(QLatin1String(name)), qPrintable(result.error));
    }
    QVERIFY2(result.error.contains(QLatin1String("the disk doesn't answer")),
             qPrintable(result.error));
    QVERIFY(!QFile::exists(file("report.json"))); // whole or not at all
}

QTEST_GUILESS_MAIN(tst_ProgramEnd)
#include "tst_ProgramEnd.moc"
