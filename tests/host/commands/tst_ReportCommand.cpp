// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"
#include "host/report/ReportWriter.h"
#include "tests/host/ProgramTest.h"
#include "tests/host/report/SampleReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>
#include <csignal>
#include <sys/stat.h>

using namespace TestSupport;

// "envcheck report" and "envcheck history".
class tst_ReportCommand : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void reports();
    void oneBadReportAmongOthers_data();
    void oneBadReportAmongOthers();
    void reportsByList();
    void historyAndLastReport();
    void reportsEndedBySignal_data();
    void reportsEndedBySignal();

private:
    QString writtenReport() const;
};

QString tst_ReportCommand::writtenReport() const
{
    QFile report(file("one.json"));
    if (report.open(QIODevice::WriteOnly)) {
        report.write(ReportWriter::toJson(sampleReport()));
    }
    return report.fileName();
}

void tst_ReportCommand::reports()
{
    const QString report = writtenReport();
    const auto shown = [&](const char* options) {
        return run(QStringList{QStringLiteral("report"), report} + words(options));
    };
    QVERIFY(shown("--language en").out.startsWith(QLatin1String("System check report\n")));
    QVERIFY(shown("--language ja --format html").out.contains(QLatin1String("lang=\"ja\"")));
    QCOMPARE(QJsonDocument::fromJson(shown("--format json").out.toUtf8()).object(),
             ReportJson::toJson(sampleReport()));
    const Run room = run(QStringList{QStringLiteral("report"), report, report,
                                     QStringLiteral("--format"), QStringLiteral("room")});
    QVERIFY2(room.out.contains(QLatin1String("Reports: 2\n")), qPrintable(room.out));
    QVERIFY(!shown("--redact personal").out.contains(QLatin1String("robin")));
    const Run list = run(QStringList{QStringLiteral("report"), report, report,
                                     QStringLiteral("--format"), QStringLiteral("json")});
    QCOMPARE(QJsonDocument::fromJson(list.out.toUtf8()).array().size(), 2);
}

void tst_ReportCommand::oneBadReportAmongOthers_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"text", "html", "json", "room", "csv", "jsonl", "map"}) {
        QTest::newRow(format) << QString::fromLatin1(format);
    }
}

// What is no report gets one line each, a pipe without waiting for its writer.
void tst_ReportCommand::oneBadReportAmongOthers()
{
    QFETCH(QString, format);
    const QString report = writtenReport();
    QCOMPARE(::mkfifo(QFile::encodeName(file("pipe.json")).constData(), 0600), 0);
    const Run alone =
        run({QStringLiteral("report"), report, report, QStringLiteral("--format"), format});
    QCOMPARE(alone.code, 0);
    const Run mixed = run({QStringLiteral("report"), file("not-there.json"), report,
                           file("pipe.json"), QStringLiteral("/dev/zero"), m_home->path(), report,
                           QStringLiteral("--format"), format});
    QCOMPARE(mixed.code, 65);
    QCOMPARE(mixed.out, alone.out);
    const QStringList lines = mixed.error.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4);
    QVERIFY2(lines.at(0).contains(file("not-there.json")), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).contains(file("pipe.json")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).contains(QLatin1String("/dev/zero")), qPrintable(lines.at(2)));
}

void tst_ReportCommand::reportsByList()
{
    const QString report = writtenReport();
    const QStringList csv = {QStringLiteral("report"), QStringLiteral("--format"),
                             QStringLiteral("csv")};
    const Run named = run(csv + QStringList{report, report});
    const QString listed = QStringLiteral("cd \"$HOME\"; printf 'one.json\\none.json\\n' | ") +
                           QStringLiteral("\"$0\" \"$@\"");
    const Run byList = finished(*started(csv + words("--files-from -"), listed));
    QCOMPARE(byList.code, 0);
    QCOMPARE(byList.out, named.out);
    const Run byInput =
        finished(*started(csv + words("-"), QStringLiteral("\"$0\" \"$@\" < ") + report));
    QCOMPARE(byInput.code, 0);
    QCOMPARE(byInput.out.count(QLatin1Char('\n')), 2);
    QCOMPARE(run(csv + words("--files-from /nonexistent")).code, 65);
}

void tst_ReportCommand::historyAndLastReport()
{
    const Run none = run(words("history"));
    QCOMPARE(none.code, 0);
    QCOMPARE(none.out, QStringLiteral("There are no earlier runs.\n"));
    const Run noReport = run(words("report"));
    QCOMPARE(noReport.code, 65);
    QCOMPARE(noReport.error.count(QLatin1Char('\n')), 1);
    const QChar turn(0x202E); // would turn the direction of a terminal's text
    const QString page = file("r") + turn + QStringLiteral(".html");
    QCOMPARE(run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--account"),
                  QStringLiteral("robin")})
                 .code,
             3);
    QCOMPARE(run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--report"), page,
                  QStringLiteral("--redact"), QStringLiteral("hash")})
                 .code,
             3);
    const Run table = run(words("history"));
    QCOMPARE(table.out.count(QLatin1Char('\n')), 3);
    QVERIFY2(table.out.contains(QLatin1String("The session was ended")), qPrintable(table.out));
    const QString json = run(words("history --json")).out;
    QVERIFY(!json.contains(turn));
    const QJsonArray list = QJsonDocument::fromJson(json.toUtf8()).array();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(1)[QStringLiteral("report")].toString(), page);
    // The page of the last run is no report to read.
    const Run last = run(words("report --format json"));
    QCOMPARE(last.code, 0);
    QVERIFY(last.out.contains(QLatin1String("robin")));
}

void tst_ReportCommand::reportsEndedBySignal_data()
{
    addSignals();
}

// Also while it waits for standard input, or for the reader of its output.
void tst_ReportCommand::reportsEndedBySignal()
{
    QFETCH(int, signal);
    const QString report = writtenReport();
    QFile list(file("list"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    for (int i = 0; i < 1000; ++i) {
        list.write(QFile::encodeName(report) + '\n');
    }
    list.close();
    // The pipe's other end is open in the shell, which neither writes nor reads.
    const QString unread = QStringLiteral("mkfifo \"$HOME/p\"; exec 3<>\"$HOME/p\"; echo; "
                                          "exec \"$0\" \"$@\" >&3");
    const QString unwritten = QStringLiteral("mkfifo \"$HOME/q\"; exec 3<>\"$HOME/q\"; echo; "
                                             "exec \"$0\" \"$@\" <&3");
    const std::vector<std::pair<QString, QString>> cases = {
        {unread, QStringLiteral("report --files-from ") + list.fileName()},
        {unwritten, QStringLiteral("report -")}};
    for (const auto& [wrapper, arguments] : cases) {
        const std::unique_ptr<QProcess> process = started(words(qPrintable(arguments)), wrapper);
        QVERIFY(process->waitForReadyRead(TimeoutMs));
        const auto isBlocked = [&process] {
            QFile wait(QStringLiteral("/proc/%1/wchan").arg(process->processId()));
            const QByteArray name = wait.open(QIODevice::ReadOnly) ? wait.readAll() : QByteArray();
            QFile command(QStringLiteral("/proc/%1/comm").arg(process->processId()));
            return command.open(QIODevice::ReadOnly) && command.readAll() == "envcheck\n" &&
                   !name.isEmpty() && name != "0";
        };
        QTRY_VERIFY_WITH_TIMEOUT(isBlocked(), TimeoutMs);
        ::kill(static_cast<pid_t>(process->processId()), signal);
        QVERIFY(process->waitForFinished(TimeoutMs));
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        QCOMPARE(process->exitCode(), signal);
    }
}

QTEST_GUILESS_MAIN(tst_ReportCommand)
#include "tst_ReportCommand.moc"
