// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/ProgramEnd.h"
#include "tests/host/ProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QUdpSocket>
#include <QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>
#include <vector>

// How the program ends if the disk, a name server or the system fail it.
class tst_ProgramEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void slowDisk_data();
    void slowDisk();
    void deadDisk();
    void stoppedWhileItEnds();
    void signalWhileItStarts_data();
    void signalWhileItStarts();
    void silentNameServer_data();
    void silentNameServer();
    void refusedThreads_data();
    void refusedThreads();
    void fewFiles_data();
    void fewFiles();
    void namedPipes_data();
    void namedPipes();
    void filesBelongToTheUser();

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

QStringList words(const QString& text)
{
    return text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString dataName(const char* name)
{
    return QStringLiteral(".local/share/envcheck/%1").arg(QLatin1String(name));
}

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
    QVERIFY2(result.error.contains(QLatin1String("the disk does not answer")),
             qPrintable(result.error));
    QVERIFY(!QFile::exists(file("report.json"))); // whole or not at all
}

// As by Ctrl+Z in its terminal: the time doesn't count, and the disk isn't blamed.
void tst_ProgramEnd::stoppedWhileItEnds()
{
    ProgramRun run(m_home->path());
    run.setFault("FAULT_SYNC_MS", QStringLiteral("600"));
    run.start({QStringLiteral("--scenario"), scenario(1000), QStringLiteral("--report"),
               file("report.json")});
    QVERIFY(run.hasPrinted("System "));
    run.signal(SIGSTOP);
    QTest::qWait(ProgramEnd::BudgetMs + 500);
    run.signal(SIGCONT);
    const ProgramRun::Result result = run.finish();
    QVERIFY2(result.code == 3, qPrintable(result.error));
    QVERIFY2(!result.error.contains(QLatin1String("the disk")), qPrintable(result.error));
    QVERIFY(QFile::exists(dataFolder() + QStringLiteral("/runs.jsonl")));
}

void tst_ProgramEnd::signalWhileItStarts_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("check") << "--server %1" << 2;
    QTest::newRow("network") << "network --server %1" << 1;
    QTest::newRow("devices") << "devices" << 2;
    QTest::newRow("serve") << "serve --port 0" << 0;
}

// The server never answers: the program waits for a second for the address of this machine.
void tst_ProgramEnd::signalWhileItStarts()
{
    QFETCH(QString, arguments);
    QFETCH(int, code);
    QUdpSocket server;
    QVERIFY(server.bind(QHostAddress::LocalHost));
    const QString address = QStringLiteral("127.0.0.1:%1").arg(server.localPort());
    for (const int number : {SIGINT, SIGTERM}) {
        ProgramRun run(m_home->path());
        run.start(words(arguments.contains(QLatin1Char('%')) ? arguments.arg(address) : arguments));
        QVERIFY(run.catchesSignals());
        run.signal(number);
        const ProgramRun::Result result = run.finish();
        QVERIFY2(result.code == code, qPrintable(QString::number(result.code) + result.error));
        QVERIFY2(result.ms < SlackMs, qPrintable(QString::number(result.ms)));
    }
}

void tst_ProgramEnd::silentNameServer_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("code");
    QTest::newRow("network") << "network --server silent.example" << 1;
    QTest::newRow("reports") << "--report-url http://silent.example/" << 2;
    QTest::newRow("sound server") << "devices" << 69; // it doesn't answer
}

void tst_ProgramEnd::silentNameServer()
{
    QFETCH(QString, arguments);
    QFETCH(int, code);
    ProgramRun run(m_home->path());
    run.setFault("FAULT_LOOKUP_MS", QStringLiteral("60000"));
    run.setVariable("PULSE_SERVER", QStringLiteral("tcp:silent.example"));
    run.start(words(arguments));
    if (code == 1) {
        QVERIFY(run.hasPrinted("no answer"));
        run.signal(SIGTERM);
    } else if (code == 2) {
        QVERIFY(run.catchesSignals());
        QTest::qWait(2000); // by then the dialog is open and the sound server is looked for
        run.signal(SIGTERM);
    }
    const ProgramRun::Result result = run.finish(30000);
    QVERIFY2(result.ms < ProgramEnd::BudgetMs + SlackMs, qPrintable(QString::number(result.ms)));
    QVERIFY2(result.code == code, qPrintable(QString::number(result.code) + result.error));
}

void tst_ProgramEnd::refusedThreads_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("endsByItself");
    QTest::newRow("check") << "--platform devices" << false;
    QTest::newRow("network") << "network --count 1" << true;
    QTest::newRow("devices") << "devices" << true;
    QTest::newRow("serve") << "serve --port 0" << false;
}

// One thread that can't be made at a time, then all of them from there on.
void tst_ProgramEnd::refusedThreads()
{
    QFETCH(QString, arguments);
    QFETCH(bool, endsByItself);
    constexpr int Threads = 8;
    std::vector<std::unique_ptr<ProgramRun>> runs;
    for (int number = 1; number <= Threads; ++number) {
        for (const char* rest : {"", "+"}) {
            runs.push_back(std::make_unique<ProgramRun>(m_home->path()));
            runs.back()->setFault("FAULT_THREAD", QString::number(number) + QLatin1String(rest));
            runs.back()->start(words(arguments));
        }
    }
    if (!endsByItself) {
        QTest::qWait(4000);
        for (const std::unique_ptr<ProgramRun>& run : runs) {
            run->signal(SIGTERM);
        }
    }
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const ProgramRun::Result result = runs[i]->finish();
        QVERIFY2(result.code >= 0, qPrintable(QStringLiteral("%1: %2").arg(i).arg(result.error)));
    }
}

void tst_ProgramEnd::fewFiles_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("check") << "--scenario all-well";
    QTest::newRow("network") << "network";
    QTest::newRow("devices") << "devices";
    QTest::newRow("serve") << "serve --port 0";
    QTest::newRow("report") << "report x";
}

void tst_ProgramEnd::fewFiles()
{
    QFETCH(QString, arguments);
    for (const int limit : {12, 16, 20, 40}) {
        ProgramRun run(m_home->path());
        run.setWrapper(QStringLiteral("ulimit -n %1; exec \"$0\" \"$@\"").arg(limit));
        run.start(words(arguments));
        const ProgramRun::Result result = run.finish();
        QCOMPARE(result.code, 69);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.error.contains(QLatin1String("ulimit -n")), qPrintable(result.error));
    }
}

void tst_ProgramEnd::namedPipes_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("pipe");
    QTest::addColumn<int>("code");
    QTest::newRow("history") << "--scenario all-well" << dataName("runs.jsonl") << 73;
    QTest::newRow("report") << "--scenario all-well --report %1"
                            << "pipe.json" << 73;
    QTest::newRow("results") << "--scenario all-well --results %1"
                             << "pipe.json" << 73;
    QTest::newRow("redaction key")
        << "--scenario all-well --redact hash" << dataName("redaction.key") << 73;
    QTest::newRow("report to show") << "report %1"
                                    << "pipe.json" << 65;
}

// Said before the check opens.
void tst_ProgramEnd::namedPipes()
{
    QFETCH(QString, arguments);
    QFETCH(QString, pipe);
    QFETCH(int, code);
    const QString path = file(qPrintable(pipe));
    QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    ProgramRun run(m_home->path());
    run.start(words(arguments.contains(QLatin1Char('%')) ? arguments.arg(path) : arguments));
    const ProgramRun::Result result = run.finish();
    QVERIFY2(result.code == code, qPrintable(QString::number(result.code) + result.error));
    QCOMPARE(result.out, QString());
    QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
    QVERIFY2(result.error.contains(path), qPrintable(result.error));
}

void tst_ProgramEnd::filesBelongToTheUser()
{
    QVERIFY(QDir().mkpath(dataFolder()));
    QVERIFY(QFile::setPermissions(dataFolder(), QFile::Permissions(0x7755)));
    ProgramRun run(m_home->path());
    run.setWrapper(QStringLiteral("umask 0; exec \"$0\" \"$@\""));
    run.start({QStringLiteral("--scenario"), scenario(1000), QStringLiteral("--results"),
               file("results.json"), QStringLiteral("--redact"), QStringLiteral("hash")});
    QCOMPARE(run.finish().code, 3);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY((QFile::permissions(file("results.json")) & others) == 0);
    QVERIFY((QFile::permissions(dataFolder()) & others) == 0);
    int count = 0;
    QDirIterator all(dataFolder(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        QVERIFY2((QFile::permissions(path) & others) == 0, qPrintable(path));
        ++count;
    }
    QVERIFY(count >= 4); // reports, a report, the runs, the key
}

QTEST_GUILESS_MAIN(tst_ProgramEnd)
#include "tst_ProgramEnd.moc"
