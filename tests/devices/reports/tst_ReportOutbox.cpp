// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/devices/reports/ReportOutbox.h"
#include "tests/devices/HttpServer.h"
#include "tests/devices/ThreadCount.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Platform;
using namespace std::chrono_literals;

class tst_ReportOutbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void resultsGoIntoTheDocument();
    void journalHasALinePerCode();
    void journalIsBounded();
    void nothingIsPostedWithoutAnAddress();
    void badAddress_data();
    void badAddress();
    void reportIsPosted();
    void reportsAreTriedAgain_data();
    void reportsAreTriedAgain();
    void retriesBackOff();
    void serverThatIsNotThere();
    void outboxSurvivesTheProgram();
    void reportCutOffIsTriedAgainLater();
    void oneUnwelcomeReportHoldsUpNone();
    void garbageInTheOutbox();
    void noClockDropsAReport();
    void reportsWaitForSoManyRuns();
    void outboxIsBounded();
    void nobodyWaits();

private:
    QString file(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray read(const char* name) const;
    QStringList outbox() const;
    void leaveReport(const QString& name, const QDateTime& time, int code) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HttpServer> m_server;
};

namespace {

OutboxLimits quickLimits()
{
    OutboxLimits limits;
    limits.firstRetry = 20ms;
    limits.longestRetry = 80ms;
    limits.postTimeout = 200ms;
    return limits;
}

QJsonObject bodyOf(const HttpServer::Request& request)
{
    return QJsonDocument::fromJson(request.body).object();
}

QList<int> codesOf(const QList<HttpServer::Request>& requests)
{
    QList<int> codes;
    for (const HttpServer::Request& request : requests) {
        codes.append(bodyOf(request).value(QLatin1String("code")).toInt());
    }
    return codes;
}

} // namespace

void tst_ReportOutbox::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_server = std::make_unique<HttpServer>();
}

void tst_ReportOutbox::cleanup()
{
    QVERIFY(FileWriter::waitForWritten(5000));
}

QByteArray tst_ReportOutbox::read(const char* name) const
{
    FileWriter::waitForWritten(5000);
    QFile found(file(name));
    return found.open(QIODevice::ReadOnly) ? found.readAll() : QByteArray();
}

QStringList tst_ReportOutbox::outbox() const
{
    FileWriter::waitForWritten(5000);
    return QDir(file("outbox")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void tst_ReportOutbox::leaveReport(const QString& name, const QDateTime& time, int code) const
{
    QVERIFY(QDir().mkpath(file("outbox")));
    QFile left(file("outbox") + QLatin1Char('/') + name);
    QVERIFY(left.open(QIODevice::WriteOnly));
    left.write(QJsonDocument(
                   QJsonObject{{QStringLiteral("time"), time.toUTC().toString(Qt::ISODateWithMs)},
                               {QStringLiteral("code"), code}})
                   .toJson());
}

void tst_ReportOutbox::resultsGoIntoTheDocument()
{
    ReportOutbox reports(file("results.json"), m_folder->path(), {});
    reports.recordResult(QStringLiteral("camera.userState"), 1);
    reports.recordMeasurement(QStringLiteral("network"), {{QStringLiteral("delayMs"), 7}});
    reports.postCode(QStringLiteral("manager"), 3);
    const QJsonObject document = QJsonDocument::fromJson(read("results.json")).object();
    QCOMPARE(document, reports.results().toJson());
    QCOMPARE(document["results"]["camera"]["userState"].toInt(), 1);
    QCOMPARE(document["measurements"]["network"]["delayMs"].toInt(), 7);
    QCOMPARE(document["codes"].toArray(), QJsonArray{3});
}

void tst_ReportOutbox::journalHasALinePerCode()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    {
        ReportOutbox reports({}, m_folder->path(), {});
        reports.postCode(QStringLiteral("first\nmanager\t "), 3);
        reports.postCode(QStringLiteral("<b>Klasse 1 ✓</b>"), 7);
    }
    ReportOutbox({}, m_folder->path(), {}).postCode({}, 7); // the next run adds to it
    const QList<QByteArray> lines = read("journal.txt").split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[3].isEmpty());
    static const QRegularExpression timePattern(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z "));
    for (int line = 0; line < 3; ++line) {
        const QString text = QString::fromUtf8(lines[line]);
        QVERIFY2(timePattern.match(text).hasMatch(), qPrintable(text));
        const QDateTime time =
            QDateTime::fromString(text.section(QLatin1Char(' '), 0, 0), Qt::ISODateWithMs);
        QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc());
    }
    QCOMPARE(QString::fromUtf8(lines[0]).section(QLatin1Char(' '), 1), QString("3 first manager"));
    QCOMPARE(QString::fromUtf8(lines[1]).section(QLatin1Char(' '), 1),
             QStringLiteral("7 <b>Klasse 1 ✓</b>"));
}

void tst_ReportOutbox::journalIsBounded()
{
    constexpr int Limit = 1024 * 1024;
    QFile journal(file("journal.txt"));
    QVERIFY(journal.open(QIODevice::WriteOnly));
    const QByteArray line("2020-01-01T00:00:00.000Z 7 somebody\n");
    journal.write(line.repeated(Limit / line.size()));
    journal.close();
    ReportOutbox({}, m_folder->path(), {}).postCode(QStringLiteral("me"), 3);
    const QByteArray content = read("journal.txt");
    QVERIFY(content.size() <= Limit && content.size() > Limit - 2 * line.size());
    QVERIFY(content.startsWith(line)); // a whole line
    QVERIFY(content.endsWith(" 3 me\n"));
}

void tst_ReportOutbox::nothingIsPostedWithoutAnAddress()
{
    ReportOutbox reports({}, m_folder->path(), {});
    reports.postCode(QStringLiteral("manager"), 3);
    QVERIFY(outbox().isEmpty());
    QCOMPARE(threadCount("ReportOutbox"), 0);
}

void tst_ReportOutbox::badAddress_data()
{
    QTest::addColumn<QString>("url");
    for (const char* url : {"nonsense", "ftp://example.org/", "http://", "http:///path",
                            "//example.org/", "http://a b/", "http://example.org:x/"}) {
        QTest::newRow(url) << QString::fromLatin1(url);
    }
}

void tst_ReportOutbox::badAddress()
{
    QFETCH(QString, url);
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable(QStringLiteral("Reports are not posted: the report address %1 is not one. Give "
                                  "it as http://HOST/PATH or https://HOST/PATH")
                       .arg(url)));
    ReportOutbox reports({}, m_folder->path(), url);
    reports.postCode(QStringLiteral("manager"), 3); // no second warning
    QVERIFY(outbox().isEmpty());
    QVERIFY(read("journal.txt").endsWith(" 3 manager\n"));
}

void tst_ReportOutbox::reportIsPosted()
{
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("Manager <1>"), 3);
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_COMPARE(m_server->requests().size(), 2);
    const HttpServer::Request first = m_server->requests().first();
    QVERIFY2(first.head.startsWith("POST /reports?from=check HTTP/1.1\r\n"), first.head);
    QVERIFY(first.head.toLower().contains("content-type: application/json"));
    const QJsonObject body = bodyOf(first);
    QCOMPARE(body.keys(), QStringList({"code", "id", "manager", "time", "version"}));
    QCOMPARE(body["version"].toInt(), 1);
    QCOMPARE(body["code"].toInt(), 3);
    QCOMPARE(body["manager"].toString(), QStringLiteral("Manager <1>"));
    QVERIFY(QDateTime::fromString(body["time"].toString(), Qt::ISODateWithMs).isValid());
    QCOMPARE(bodyOf(m_server->requests().at(1))["code"].toInt(), 7);
    QVERIFY(body["id"] != bodyOf(m_server->requests().at(1))["id"]);
    QTRY_VERIFY(outbox().isEmpty());
    QTest::qWait(100);
    QCOMPARE(m_server->requests().size(), 2); // each one once
}

void tst_ReportOutbox::reportsAreTriedAgain_data()
{
    QTest::addColumn<int>("behaviour");
    QTest::newRow("status 500") << int(HttpServer::Behaviour::Fail);
    QTest::newRow("redirected") << int(HttpServer::Behaviour::Redirect);
    QTest::newRow("no answer") << int(HttpServer::Behaviour::Hang);
    QTest::newRow("connection cut") << int(HttpServer::Behaviour::HangUp);
}

void tst_ReportOutbox::reportsAreTriedAgain()
{
    QFETCH(int, behaviour);
    m_server->setBehaviour(HttpServer::Behaviour(behaviour));
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_VERIFY(m_server->requests().size() >= 2);
    QCOMPARE(outbox().size(), 1);
    m_server->setBehaviour(HttpServer::Behaviour::Take);
    QTRY_VERIFY(outbox().isEmpty());
    // The same report each time, so that a server can tell.
    QSet<QByteArray> bodies;
    for (const HttpServer::Request& request : m_server->requests()) {
        bodies.insert(request.body);
    }
    QCOMPARE(bodies.size(), 1);
}

void tst_ReportOutbox::retriesBackOff()
{
    OutboxLimits limits = quickLimits();
    limits.firstRetry = 50ms;
    limits.longestRetry = 200ms;
    m_server->setBehaviour(HttpServer::Behaviour::Fail);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), limits);
    QElapsedTimer clock;
    clock.start();
    reports.postCode(QStringLiteral("manager"), 7);
    // At 0, 50, 150, 350, 550 ms.
    QTRY_COMPARE(m_server->requests().size(), 5);
    QVERIFY2(clock.elapsed() >= 500, qPrintable(QString::number(clock.elapsed())));
    // A new report doesn't hurry a server that has trouble.
    reports.postCode(QStringLiteral("manager"), 3);
    QTest::qWait(100);
    QVERIFY(m_server->requests().size() <= 6);
}

void tst_ReportOutbox::serverThatIsNotThere()
{
    m_server->refuse();
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("manager"), 7);
    QTest::qWait(150);
    QCOMPARE(outbox().size(), 1);
    m_server->listen();
    QTRY_COMPARE(m_server->requests().size(), 1);
    QTRY_VERIFY(outbox().isEmpty());
}

void tst_ReportOutbox::outboxSurvivesTheProgram()
{
    m_server->refuse();
    {
        ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
        reports.postCode(QStringLiteral("manager"), 7);
        reports.postCode(QStringLiteral("manager"), 3);
    }
    QCOMPARE(outbox().size(), 2);
    m_server->listen();
    const ReportOutbox next({}, m_folder->path(), m_server->url(), quickLimits());
    QTRY_COMPARE(m_server->requests().size(), 2);
    const QList<int> codes = codesOf(m_server->requests());
    QVERIFY(codes.contains(3) && codes.contains(7));
    QTRY_VERIFY(outbox().isEmpty());
}

void tst_ReportOutbox::reportCutOffIsTriedAgainLater()
{
    m_server->setBehaviour(HttpServer::Behaviour::Hang);
    {
        ReportOutbox reports({}, m_folder->path(), m_server->url());
        reports.postCode(QStringLiteral("manager"), 7);
        QTRY_COMPARE(m_server->requests().size(), 1);
    }
    QCOMPARE(outbox().size(), 1); // nobody knows whether the server took it
    m_server->setBehaviour(HttpServer::Behaviour::Take);
    const ReportOutbox next({}, m_folder->path(), m_server->url());
    QTRY_COMPARE(m_server->requests().size(), 2);
    QCOMPARE(m_server->requests().at(0).body, m_server->requests().at(1).body);
    QTRY_VERIFY(outbox().isEmpty());
}

void tst_ReportOutbox::oneUnwelcomeReportHoldsUpNone()
{
    m_server->setBehaviour(HttpServer::Behaviour::Fail);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_COMPARE(m_server->requests().size(), 1);
    reports.postCode(QStringLiteral("manager"), 3);
    QTRY_VERIFY(codesOf(m_server->requests()).contains(3)); // though 7 was never taken
}

void tst_ReportOutbox::garbageInTheOutbox()
{
    QVERIFY(QDir().mkpath(file("outbox")));
    QFile garbage(file("outbox") + QStringLiteral("/1.json"));
    QVERIFY(garbage.open(QIODevice::WriteOnly));
    garbage.write("{ \"time\": ");
    garbage.close();
    leaveReport(QStringLiteral("2.json"), QDateTime::currentDateTimeUtc(), 7);
    QTest::ignoreMessage(QtWarningMsg, "Report 1.json is dropped: it isn't a report");
    const ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    QTRY_COMPARE(m_server->requests().size(), 1);
    QCOMPARE(codesOf(m_server->requests()), QList<int>{7});
    QTRY_VERIFY(outbox().isEmpty());
}

// The clock may have stood ten years ago or ahead when a report was made, or may do so now.
void tst_ReportOutbox::noClockDropsAReport()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    leaveReport(QStringLiteral("1.json"), now.addYears(-10), 1);
    leaveReport(QStringLiteral("2.json"), now, 2);
    leaveReport(QStringLiteral("3.json"), now.addYears(10), 3);
    const ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    QTRY_VERIFY(outbox().isEmpty());
    QCOMPARE(codesOf(m_server->requests()), QList<int>({1, 2, 3}));
}

void tst_ReportOutbox::reportsWaitForSoManyRuns()
{
    OutboxLimits limits = quickLimits();
    limits.maxRuns = 3;
    m_server->setBehaviour(HttpServer::Behaviour::Fail);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    leaveReport(QStringLiteral("2.json"), now.addYears(10), 2);
    for (int run = 1; run <= limits.maxRuns; ++run) {
        const ReportOutbox reports({}, m_folder->path(), m_server->url(), limits);
        QTRY_COMPARE(read("outbox-runs.json"), "{\"2.json\":" + QByteArray::number(run) + '}');
        QCOMPARE(outbox(), QStringList{QStringLiteral("2.json")});
    }
    leaveReport(QStringLiteral("1.json"), now, 1);
    QTest::ignoreMessage(QtWarningMsg, "Report 2.json is dropped: it has waited for too many runs");
    m_server->setBehaviour(HttpServer::Behaviour::Take);
    const ReportOutbox reports({}, m_folder->path(), m_server->url(), limits);
    QTRY_VERIFY(outbox().isEmpty());
    QCOMPARE(codesOf(m_server->requests()).last(), 1);
}

void tst_ReportOutbox::outboxIsBounded()
{
    OutboxLimits limits = quickLimits();
    limits.maxReports = 3;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (int number = 1; number <= 5; ++number) {
        leaveReport(QStringLiteral("%1.json").arg(number), now, number);
    }
    // The one that has waited longest goes first, whatever its name says.
    QFile runs(file("outbox-runs.json"));
    QVERIFY(runs.open(QIODevice::WriteOnly));
    runs.write(R"({"5.json": 4, "4.json": 1e300, "3.json": "x"})");
    runs.close();
    QTest::ignoreMessage(QtWarningMsg, "Report 5.json is dropped: the outbox is full");
    QTest::ignoreMessage(QtWarningMsg, "Report 1.json is dropped: the outbox is full");
    const ReportOutbox reports({}, m_folder->path(), m_server->url(), limits);
    QTRY_VERIFY(outbox().isEmpty());
    QCOMPARE(codesOf(m_server->requests()), QList<int>({2, 3, 4}));
}

void tst_ReportOutbox::nobodyWaits()
{
    m_server->setBehaviour(HttpServer::Behaviour::Hang);
    qint64 longest = 0;
    QElapsedTimer clock;
    clock.start();
    {
        ReportOutbox reports(file("results.json"), m_folder->path(), m_server->url());
        longest = clock.restart();
        for (int count = 0; count < 50; ++count) {
            clock.restart();
            reports.postCode(QStringLiteral("manager"), 7);
            longest = qMax(longest, clock.elapsed());
        }
        QTRY_COMPARE(m_server->requests().size(), 1); // a post is under way
        QCOMPARE(threadCount("ReportOutbox"), 1);
        clock.restart();
    }
    longest = qMax(longest, clock.elapsed());
    QVERIFY2(longest < 50, qPrintable(QString::number(longest)));
    QVERIFY(FileWriter::waitForWritten(5000));
    QTRY_COMPARE(threadCount("ReportOutbox"), 0);
}

QTEST_GUILESS_MAIN(tst_ReportOutbox)
#include "tst_ReportOutbox.moc"
