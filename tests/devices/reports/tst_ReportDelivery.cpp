// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/devices/reports/ReportOutbox.h"
#include "tests/devices/HttpServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <future>

using namespace Platform;
using namespace std::chrono_literals;

// What becomes of reports at the end of the program, and with servers that don't come to an end.
class tst_ReportDelivery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void deliversWhatIsUnderWay();
    void deliversNoLongerThanAsked();
    void deliveryEndsWithAFailure();
    void answerIsAllThatIsRead();
    void endlessHeadersAreCutOff();
    void floodOfHeadersIsCutOff();
    void repeatedPostIsKnown();

private:
    QStringList outbox() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HttpServer> m_server;
};

namespace {

constexpr int WaitMs = 5000;

OutboxLimits quickLimits()
{
    OutboxLimits limits;
    limits.firstRetry = 20ms;
    limits.postTimeout = 200ms;
    return limits;
}

QJsonObject bodyOf(const HttpServer::Request& request)
{
    return QJsonDocument::fromJson(request.body).object();
}

} // namespace

void tst_ReportDelivery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_server = std::make_unique<HttpServer>();
}

void tst_ReportDelivery::cleanup()
{
    QVERIFY(FileWriter::waitForWritten(WaitMs));
}

QStringList tst_ReportDelivery::outbox() const
{
    FileWriter::waitForWritten(WaitMs);
    return QDir(m_folder->filePath(QStringLiteral("outbox"))).entryList(QDir::Files | QDir::Hidden);
}

// As at the end of the program, which waits on the main thread. Here the server runs on that.
void tst_ReportDelivery::deliversWhatIsUnderWay()
{
    m_server->setBehaviour(HttpServer::Behaviour::TakeLate);
    {
        ReportOutbox reports({}, m_folder->path(), m_server->url());
        reports.postCode(QStringLiteral("manager"), 3);
        reports.postCode(QStringLiteral("manager"), 7);
        const std::future<void> delivery =
            std::async(std::launch::async, [&reports] { reports.deliver(5s); });
        QTRY_VERIFY(delivery.wait_for(0s) == std::future_status::ready);
    }
    QCOMPARE(m_server->requests().size(), 2);
    QVERIFY(outbox().isEmpty());
}

void tst_ReportDelivery::deliversNoLongerThanAsked()
{
    m_server->setBehaviour(HttpServer::Behaviour::Hang);
    ReportOutbox reports({}, m_folder->path(), m_server->url());
    reports.postCode(QStringLiteral("manager"), 7);
    QElapsedTimer clock;
    clock.start();
    reports.deliver(100ms);
    QVERIFY(clock.elapsed() >= 90);
    QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(outbox().size(), 1);
    ReportOutbox({}, m_folder->path(), {}).deliver(1h); // nothing to wait for
}

void tst_ReportDelivery::deliveryEndsWithAFailure()
{
    m_server->refuse();
    ReportOutbox reports({}, m_folder->path(), m_server->url());
    reports.postCode(QStringLiteral("manager"), 7);
    reports.deliver(1h);
    QCOMPARE(outbox().size(), 1);
}

// A body at a byte every now and then takes no time: the status says all.
void tst_ReportDelivery::answerIsAllThatIsRead()
{
    m_server->setBehaviour(HttpServer::Behaviour::SlowBody);
    ReportOutbox reports({}, m_folder->path(), m_server->url());
    reports.postCode(QStringLiteral("manager"), 3);
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_COMPARE(m_server->requests().size(), 2);
    QTRY_VERIFY(outbox().isEmpty());
}

void tst_ReportDelivery::endlessHeadersAreCutOff()
{
    m_server->setBehaviour(HttpServer::Behaviour::EndlessHeaders);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_VERIFY(m_server->requests().size() >= 2); // given up, and tried again
    QCOMPARE(outbox().size(), 1);
}

// Long before the time limit of 15 s.
void tst_ReportDelivery::floodOfHeadersIsCutOff()
{
    constexpr qint64 MostBytes = qint64(16) * 1024 * 1024; // the kernel's buffers are most of it
    constexpr int EnoughMs = 3000;
    OutboxLimits limits;
    limits.firstRetry = 1h;
    limits.maxHeadBytes = 256 * 1024;
    m_server->setBehaviour(HttpServer::Behaviour::HeaderFlood);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), limits);
    QElapsedTimer clock;
    clock.start();
    reports.postCode(QStringLiteral("manager"), 7);
    const std::future<void> delivery =
        std::async(std::launch::async, [&reports] { reports.deliver(1h); });
    QTRY_VERIFY_WITH_TIMEOUT(delivery.wait_for(0s) == std::future_status::ready, 20000);
    qInfo("%lld ms, %lld bytes", clock.elapsed(), m_server->flooded());
    QVERIFY2(clock.elapsed() < EnoughMs, qPrintable(QString::number(clock.elapsed())));
    QVERIFY2(m_server->flooded() < MostBytes, qPrintable(QString::number(m_server->flooded())));
    QCOMPARE(outbox().size(), 1);
}

void tst_ReportDelivery::repeatedPostIsKnown()
{
    m_server->setBehaviour(HttpServer::Behaviour::HangUp);
    ReportOutbox reports({}, m_folder->path(), m_server->url(), quickLimits());
    reports.postCode(QStringLiteral("manager"), 7);
    QTRY_VERIFY(m_server->requests().size() >= 2);
    for (const HttpServer::Request& request : m_server->requests()) {
        const QByteArray id = bodyOf(request).value(QLatin1String("id")).toString().toUtf8();
        QVERIFY(!id.isEmpty());
        QVERIFY2(request.head.contains("Idempotency-Key: " + id), request.head);
    }
}

QTEST_GUILESS_MAIN(tst_ReportDelivery)
#include "tst_ReportDelivery.moc"
