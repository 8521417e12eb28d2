// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/report/ReportJson.h"
#include "tests/host/ProgramTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>
#include <csignal>

using namespace TestSupport;

// The check, in the program as users start it.
class tst_CheckCommand : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void checkEndedBySignal_data();
    void checkEndedBySignal();
    void checkPutOut();
    void resultsAndReportGoWhereAsked();
    void documentOnOutput();
    void resultsCantSteerTheTerminal();
    void unwritablePlaces_data();
    void unwritablePlaces();
    void diskFull();
    void unwritableHome();
    void runsAreKeptAndCompared();
    void touredRunIsReported();
    void redactedRun();
};

void tst_CheckCommand::checkEndedBySignal_data()
{
    addSignals();
}

void tst_CheckCommand::checkEndedBySignal()
{
    QFETCH(int, signal);
    const Run result = checked(words("--scenario all-well"), signal);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.error, QString());
    const QStringList lines = result.out.split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 6);
    QVERIFY2(lines.at(0).startsWith(QLatin1String("System   Passed")), qPrintable(result.out));
    QVERIFY(lines.at(4).contains(dataFolder()));
}

void tst_CheckCommand::checkPutOut()
{
    const std::unique_ptr<QProcess> process =
        started(QStringList{QStringLiteral("--scenario"), quickEnd()});
    const Run result = finished(*process);
    QCOMPARE(result.code, 3);
    QCOMPARE(result.error, QString());
}

void tst_CheckCommand::resultsAndReportGoWhereAsked()
{
    for (const char* name : {"r.json", "r.html", "r.txt"}) {
        const QString report = file(name);
        const Run result = checked(
            QStringList{QStringLiteral("--scenario"), QStringLiteral("all-well"),
                        QStringLiteral("--report"), report, QStringLiteral("--results"),
                        file("results.json"), QStringLiteral("--language"), QStringLiteral("fr")});
        QCOMPARE(result.code, 2);
        QVERIFY2(result.out.contains(report), qPrintable(result.out));
        QVERIFY(QFileInfo(report).size() > 1000);
    }
    const QJsonObject results = jsonOf(file("results.json"));
    QCOMPARE(results.value(QStringLiteral("version")).toInt(), 1);
    const QJsonObject report = jsonOf(file("r.json"));
    QString error;
    QVERIFY2(ReportJson::fromJson(report, &error), qPrintable(error));
    QCOMPARE(report.value(QStringLiteral("language")).toString(), QStringLiteral("fr"));
    QCOMPARE(report.value(QStringLiteral("scenario")).toString(), QStringLiteral("all-well"));
    QVERIFY(!QFileInfo::exists(dataFolder() + QStringLiteral("/reports/r.json")));
}

// The result table goes to standard error then.
// A device may be named by anybody.
void tst_CheckCommand::resultsCantSteerTheTerminal()
{
    QFile scenario(file("steering.json"));
    QVERIFY(scenario.open(QIODevice::WriteOnly));
    scenario.write(R"({ "base": "all-well", "cameras": [ { "id": "c",)"
                   R"( "name": "a\u001b\u009b31m\u202e\u2066b" } ] })");
    scenario.close();
    const Run result =
        run({QStringLiteral("--scenario"), scenario.fileName(), QStringLiteral("--tour"),
             file("tour"), QStringLiteral("--results"), QStringLiteral("-")});
    QVERIFY2(result.out.startsWith(QLatin1Char('{')), qPrintable(result.out + result.error));
    QVERIFY2(result.out.contains(QLatin1String("31m\\u202e\\u2066b")), qPrintable(result.out));
    for (const QChar c : {QChar(0x1b), QChar(0x9b), QChar(0x202e), QChar(0x2066)}) {
        QVERIFY(!result.out.contains(c));
    }
}

void tst_CheckCommand::documentOnOutput()
{
    const Run report = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--report"),
                            QStringLiteral("-")});
    QCOMPARE(report.code, 3);
    QString error;
    QVERIFY2(ReportJson::fromJson(QJsonDocument::fromJson(report.out.toUtf8()).object(), &error),
             qPrintable(error));
    QVERIFY2(report.error.startsWith(QLatin1String("System ")), qPrintable(report.error));
    const Run results = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--results"),
                             QStringLiteral("-"), QStringLiteral("--report"), file("r.json")});
    QVERIFY(
        QJsonDocument::fromJson(results.out.toUtf8()).object().contains(QStringLiteral("results")));
    QVERIFY(results.error.contains(file("r.json")));
}

void tst_CheckCommand::unwritablePlaces_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("results") << "--results";
    QTest::newRow("report") << "--report";
}

// Said before the check opens: nobody's time is lost.
void tst_CheckCommand::unwritablePlaces()
{
    QFETCH(QString, option);
    for (const char* place : {"/nonexistent/r.json", "/", "/etc/passwd/r.json"}) {
        const Run result =
            run(words("--scenario all-well") + QStringList{option, QLatin1String(place)});
        QCOMPARE(result.code, 73);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.error.count(QLatin1Char('\n')), 1);
        QVERIFY2(result.error.contains(QLatin1String(place)), qPrintable(result.error));
    }
}

// No file may grow above nothing: the disk is full for this process.
void tst_CheckCommand::diskFull()
{
    const std::unique_ptr<QProcess> process =
        started(QStringList{QStringLiteral("--scenario"), quickEnd()},
                QStringLiteral("trap '' XFSZ; ulimit -f 0; exec \"$0\" \"$@\""));
    const Run result = finished(*process);
    QCOMPARE(result.code, 73);
    QCOMPARE(result.out.count(QLatin1Char('\n')), 4); // the table is there
    QVERIFY2(result.error.contains(QLatin1String("reports/")), qPrintable(result.error));
    QVERIFY2(result.error.contains(QLatin1String("can't be written")), qPrintable(result.error));
    const QDir reports(dataFolder() + QStringLiteral("/reports"));
    QCOMPARE(reports.entryList(QDir::Files | QDir::Hidden), QStringList());
}

void tst_CheckCommand::unwritableHome()
{
    QFile blocking(file(".local"));
    QVERIFY(blocking.open(QIODevice::WriteOnly));
    const Run result = run(QStringList{QStringLiteral("--scenario"), quickEnd()});
    QCOMPARE(result.code, 73);
    QCOMPARE(result.out.count(QLatin1Char('\n')), 4);
    QVERIFY2(result.error.contains(QLatin1String("reports")), qPrintable(result.error));
}

void tst_CheckCommand::runsAreKeptAndCompared()
{
    // A good run of another day, then two that were put out.
    QVERIFY(QDir().mkpath(dataFolder()));
    QFile runs(dataFolder() + QStringLiteral("/runs.jsonl"));
    QVERIFY(runs.open(QIODevice::WriteOnly));
    runs.write("{\"outcome\":\"passed\",\"platform\":\"scripted\",\"finished\":\"2026-01-02T03:04:"
               "05.000Z\",\"operatingSystem\":\"Another system\"}\n");
    runs.close();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(run(QStringList{QStringLiteral("--scenario"), quickEnd(),
                                 QStringLiteral("--report"), file("r.json")})
                     .code,
                 3);
    }
    const QStringList lines = linesOf(runs.fileName());
    QCOMPARE(lines.size(), 3);
    const QJsonObject last = QJsonDocument::fromJson(lines.last().toUtf8()).object();
    QCOMPARE(last.value(QStringLiteral("outcome")).toString(), QStringLiteral("putOut"));
    QCOMPARE(last.value(QStringLiteral("report")).toString(), file("r.json"));
    QString error;
    const std::optional<Report> report = ReportJson::fromJson(jsonOf(file("r.json")), &error);
    QVERIFY2(report, qPrintable(error));
    QVERIFY(report->lastGoodRun);
    QCOMPARE(report->changes.at(0).what, ChangedThing::OperatingSystem);
    QCOMPARE(report->changes.at(0).before, QStringLiteral("Another system"));
}

// The tour answers yes to everything, also to a black picture.
void tst_CheckCommand::touredRunIsReported()
{
    const Run result = run(QStringList{QStringLiteral("--scenario"), QStringLiteral("camera-black"),
                                       QStringLiteral("--tour"), file("tour")});
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QVERIFY2(result.out.contains(file("tour/report.html")), qPrintable(result.out));
    const QString page = linesOf(file("tour/report.html")).join(QLatin1Char('\n'));
    QVERIFY(page.contains(QLatin1String("Answered yes to a black picture.")));
    QVERIFY(page.contains(QLatin1String("ITU-T G.114")));
    QVERIFY(page.contains(QLatin1String("not measured: a scripted device has no such figure")));
    QVERIFY(!page.contains(QLatin1String("the engine does not record it")));
    QVERIFY(!QFileInfo::exists(dataFolder() + QStringLiteral("/runs.jsonl")));
}

void tst_CheckCommand::redactedRun()
{
    for (const char* level : {"personal", "hash"}) {
        const Run result =
            run(QStringList{QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--account"),
                            QStringLiteral("robin@example.org"), QStringLiteral("--report"),
                            file("r.html"), QStringLiteral("--redact"), QLatin1String(level)});
        QCOMPARE(result.code, 3);
        QVERIFY(!linesOf(file("r.html")).join(QLatin1Char(' ')).contains(QLatin1String("robin")));
    }
    // The camera's name is in none of the outputs; nor, in those of a user's run, is the home.
    const Run tour =
        run({QStringLiteral("--scenario"), QStringLiteral("camera-black"), QStringLiteral("--tour"),
             file("tour"), QStringLiteral("--report"), file("r.json"), QStringLiteral("--results"),
             file("results.json"), QStringLiteral("--redact"), QStringLiteral("hash")});
    QCOMPARE(tour.code, 0);
    const QString device = QStringLiteral("Front camera");
    for (const QString& output : {tour.out, linesOf(file("r.json")).join(QLatin1Char(' ')),
                                  linesOf(file("results.json")).join(QLatin1Char(' '))}) {
        QVERIFY(output.contains(QLatin1Char('#')));
        QVERIFY2(!output.contains(device), qPrintable(output));
    }
    const Run kickedOut = run({QStringLiteral("--scenario"), quickEnd(), QStringLiteral("--redact"),
                               QStringLiteral("personal")});
    const QStringList lines = linesOf(dataFolder() + QStringLiteral("/runs.jsonl"));
    for (const QString& output : {kickedOut.out, lines.last()}) {
        QVERIFY2(output.contains(QLatin1String("~/.local/share")), qPrintable(output));
        QVERIFY2(!output.contains(m_home->path()), qPrintable(output));
    }
    QVERIFY(QFileInfo::exists(QJsonDocument::fromJson(run(words("history --json")).out.toUtf8())
                                  .array()
                                  .last()[QStringLiteral("report")]
                                  .toString()));
    QCOMPARE(QFileInfo(dataFolder() + QStringLiteral("/redaction.key")).size(), 32);
}

QTEST_GUILESS_MAIN(tst_CheckCommand)
#include "tst_CheckCommand.moc"
