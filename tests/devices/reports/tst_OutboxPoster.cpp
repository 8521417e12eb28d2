// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/devices/reports/ReportOutbox.h"
#include "tests/devices/HttpServer.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <future>

using namespace Platform;
using namespace std::chrono_literals;

// Whole reports, the token, and what the answers of a server mean.
class tst_OutboxPoster : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void wholeReportIsPosted();
    void fileIsThereBeforeThePost();
    void largeReportWaitsForTheNextRun();
    void postedByAnotherRun();
    void answers_data();
    void answers();
    void noAnswer_data();
    void noAnswer();
    void tokenGoesAlong_data();
    void tokenGoesAlong();
    void tokenGoesNowhereElse();
    void nothingMoreWithAWrongToken();
    void refusedReportHoldsUpNone();

private:
    QStringList outbox() const;
    DeliveryOutcome delivered(ReportOutbox& reports) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HttpServer> m_server;
};

namespace {

constexpr int WaitMs = 5000;

OutboxLimits oneTry()
{
    OutboxLimits limits;
    limits.firstRetry = 1h;
    limits.postTimeout = 300ms;
    return limits;
}

QByteArray wholeReport(int size = 0)
{
    return QJsonDocument(
               QJsonObject{{QStringLiteral("format"), QStringLiteral("envcheck-report")},
                           {QStringLiteral("id"), QStringLiteral("the-run")},
                           {QStringLiteral("finished"), QStringLiteral("2026-01-02T03:04:05.678Z")},
                           {QStringLiteral("filling"), QString(size, QLatin1Char('x'))}})
        .toJson(QJsonDocument::Compact);
}

} // namespace

void tst_OutboxPoster::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_server = std::make_unique<HttpServer>();
}

void tst_OutboxPoster::cleanup()
{
    QVERIFY(FileWriter::waitForWritten(WaitMs));
}

QStringList tst_OutboxPoster::outbox() const
{
    FileWriter::waitForWritten(WaitMs);
    return QDir(m_folder->filePath(QStringLiteral("outbox"))).entryList(QDir::Files | QDir::Hidden);
}

// The server runs on this thread.
DeliveryOutcome tst_OutboxPoster::delivered(ReportOutbox& reports) const
{
    std::future<DeliveryOutcome> delivery =
        std::async(std::launch::async, [&reports] { return reports.deliver(10s); });
    [&delivery] { QTRY_VERIFY(delivery.wait_for(0s) == std::future_status::ready); }();
    return delivery.get();
}

void tst_OutboxPoster::wholeReportIsPosted()
{
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
    reports.postReport(wholeReport(), 1s);
    const DeliveryOutcome outcome = delivered(reports);
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(m_server->requests().first().body, wholeReport());
    const QByteArray head = m_server->requests().first().head;
    QVERIFY2(head.contains("Idempotency-Key: the-run"), head);
    QVERIFY2(!head.contains("Authorization"), head);
    QVERIFY(!outcome.isUnderWay && outcome.waiting == 0 && outcome.refused == 0);
    QVERIFY(outbox().isEmpty());
}

void tst_OutboxPoster::fileIsThereBeforeThePost()
{
    m_server->setBehaviour(HttpServer::Behaviour::Hang);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
    reports.postReport(wholeReport(), 5s);
    // As if the program was killed now: what is there is in the folder.
    const QDir folder(m_folder->filePath(QStringLiteral("outbox")));
    const QStringList names = folder.entryList(QDir::Files);
    QCOMPARE(names.size(), 1);
    QFile file(folder.filePath(names.first()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), wholeReport());
}

void tst_OutboxPoster::largeReportWaitsForTheNextRun()
{
    constexpr int Large = 300000;
    m_server->refuse();
    {
        ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
        reports.postReport(wholeReport(Large), 5s);
        QCOMPARE(delivered(reports).waiting, 1);
    }
    m_server->listen();
    ReportOutbox next({}, m_folder->path(), m_server->url(), oneTry());
    QCOMPARE(delivered(next).waiting, 0);
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(m_server->requests().first().body, wholeReport(Large));
    QVERIFY(outbox().isEmpty());
}

// Two programs share the folder.
void tst_OutboxPoster::postedByAnotherRun()
{
    m_server->setBehaviour(HttpServer::Behaviour::Fail);
    {
        ReportOutbox first({}, m_folder->path(), m_server->url(), oneTry());
        first.postReport(wholeReport(), 5s);
        first.postReport(wholeReport(1), 5s);
        QCOMPARE(delivered(first).waiting, 2);
    }
    OutboxLimits limits = oneTry();
    limits.firstRetry = 300ms;
    ReportOutbox second({}, m_folder->path(), m_server->url(), limits);
    QTRY_COMPARE(m_server->requests().size(), 2); // one of each run
    QVERIFY(QDir(m_folder->filePath(QStringLiteral("outbox"))).removeRecursively());
    m_server->setBehaviour(HttpServer::Behaviour::Take);
    QTRY_COMPARE(delivered(second).waiting, 0);
    QCOMPARE(m_server->requests().size(), 2);
}

void tst_OutboxPoster::answers_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<int>("waiting");
    QTest::addColumn<int>("refused");
    const auto row = [](const char* status, int waiting, int refused) {
        QTest::newRow(status) << QByteArray(status) << waiting << refused;
    };
    row("200 OK", 0, 0);
    row("201 Created", 0, 0);
    row("204 No Content", 0, 0);
    row("409 Conflict", 0, 0); // it is there already
    row("413 Content Too Large", 0, 1);
    row("422 Unprocessable Content", 0, 1);
    row("301 Moved Permanently\r\nLocation: /elsewhere", 1, 0);
    row("307 Temporary Redirect\r\nLocation: /elsewhere", 1, 0);
    row("400 Bad Request", 1, 0);
    row("401 Unauthorized", 1, 0);
    row("401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"", 1, 0);
    row("403 Forbidden", 1, 0);
    row("404 Not Found", 1, 0);
    row("429 Too Many Requests", 1, 0);
    row("500 Internal Server Error", 1, 0);
    row("503 Service Unavailable", 1, 0);
}

void tst_OutboxPoster::answers()
{
    QFETCH(QByteArray, status);
    QFETCH(int, waiting);
    QFETCH(int, refused);
    m_server->setStatus(status);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
    reports.postReport(wholeReport(), 5s);
    const DeliveryOutcome outcome = delivered(reports);
    QCOMPARE(outcome.waiting, waiting);
    QCOMPARE(outcome.refused, refused);
    QCOMPARE(outcome.status, waiting + refused > 0 ? status.left(3).toInt() : 0);
    QCOMPARE(outcome.isTurnedAway, status.startsWith("401") || status.startsWith("403"));
    QCOMPARE(outbox().size(), waiting);
    QCOMPARE(m_server->requests().size(), 1);
}

void tst_OutboxPoster::noAnswer_data()
{
    QTest::addColumn<int>("behaviour"); // or none
    QTest::addColumn<bool>("hasReason");
    QTest::newRow("not there") << -1 << true;
    QTest::newRow("cut") << int(HttpServer::Behaviour::HangUp) << true;
    QTest::newRow("silent") << int(HttpServer::Behaviour::Hang) << false;
}

void tst_OutboxPoster::noAnswer()
{
    QFETCH(int, behaviour);
    QFETCH(bool, hasReason);
    if (behaviour < 0) {
        m_server->refuse();
    } else {
        m_server->setBehaviour(HttpServer::Behaviour(behaviour));
    }
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
    reports.postReport(wholeReport(), 5s);
    const DeliveryOutcome outcome = delivered(reports);
    QCOMPARE(outcome.waiting, 1);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(!outcome.reason.isEmpty(), hasReason);
    QCOMPARE(outbox().size(), 1);
}

void tst_OutboxPoster::tokenGoesAlong_data()
{
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("report") << true;
    QTest::newRow("code") << false;
}

void tst_OutboxPoster::tokenGoesAlong()
{
    QFETCH(bool, isWhole);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry(), "se.cret==");
    if (isWhole) {
        reports.postReport(wholeReport(), 5s);
    } else {
        reports.postCode(QStringLiteral("manager"), 3);
    }
    QTRY_COMPARE(m_server->requests().size(), 1);
    const QByteArray head = m_server->requests().first().head + "\r\n";
    QVERIFY2(head.contains("\r\nAuthorization: Bearer se.cret==\r\n"), head);
}

void tst_OutboxPoster::tokenGoesNowhereElse()
{
    const HttpServer stranger;
    for (const char* status : {"301 Moved", "302 Found", "307 Moved", "308 Moved"}) {
        m_server->setStatus(status + QByteArray("\r\nLocation: ") + stranger.url().toUtf8());
        ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry(), "secret");
        reports.postReport(wholeReport(), 5s);
        QVERIFY(delivered(reports).waiting > 0);
    }
    QVERIFY(stranger.requests().isEmpty());
}

// It would be refused as well, and a server may lock out who tries too often.
void tst_OutboxPoster::nothingMoreWithAWrongToken()
{
    m_server->setStatus("401 Unauthorized");
    OutboxLimits limits = oneTry();
    limits.firstRetry = 10ms;
    {
        ReportOutbox reports({}, m_folder->path(), m_server->url(), limits, "old");
        reports.postReport(wholeReport(), 5s);
        QCOMPARE(delivered(reports).waiting, 1);
        reports.postCode(QStringLiteral("manager"), 3);
        QCOMPARE(delivered(reports).waiting, 2);
        QTest::qWait(100);
        QCOMPARE(m_server->requests().size(), 1);
    }
    m_server->setBehaviour(HttpServer::Behaviour::Take);
    ReportOutbox next({}, m_folder->path(), m_server->url(), limits, "new");
    QCOMPARE(delivered(next).waiting, 0);
    QCOMPARE(m_server->requests().size(), 3);
}

void tst_OutboxPoster::refusedReportHoldsUpNone()
{
    m_server->setStatus("413 Content Too Large");
    ReportOutbox reports({}, m_folder->path(), m_server->url(), oneTry());
    reports.postReport(wholeReport(), 5s);
    reports.postReport(wholeReport(1), 5s);
    const DeliveryOutcome outcome = delivered(reports);
    QCOMPARE(outcome.refused, 2);
    QCOMPARE(outcome.waiting, 0);
    QVERIFY(outbox().isEmpty());
}

QTEST_GUILESS_MAIN(tst_OutboxPoster)
#include "tst_OutboxPoster.moc"
