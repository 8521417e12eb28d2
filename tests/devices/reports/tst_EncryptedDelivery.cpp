// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"
#include "platform/devices/reports/ReportOutbox.h"
#include "tests/devices/EncryptedListener.h"
#include "tests/devices/HttpServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QTest>

#include <future>

using namespace Platform;
using namespace std::chrono_literals;

// Reports to a server with TLS.
class tst_EncryptedDelivery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knownServerTakesAReport();
    void knownByTheEnvironment();
    void namedFileWithoutCertificates();
    void strangersCertificateIsRefused();
    void floodOfHeadersIsCutOff();

private:
    void trustServer() const;
    void post(const OutboxLimits& limits);
    int waitingReports() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QSslCertificate m_certificate;
    std::unique_ptr<HttpServer> m_server;
    const QSslConfiguration m_usualTrust = QSslConfiguration::defaultConfiguration();
};

namespace {

constexpr int WaitMs = 5000;

OutboxLimits oneTry()
{
    OutboxLimits limits;
    limits.firstRetry = 1h;
    return limits;
}

} // namespace

void tst_EncryptedDelivery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qunsetenv("SSL_CERT_FILE");
    auto listener = std::make_unique<EncryptedListener>();
    m_certificate = listener->certificate();
    QVERIFY(!m_certificate.isNull());
    m_server = std::make_unique<HttpServer>(std::move(listener));
}

void tst_EncryptedDelivery::cleanup()
{
    QVERIFY(FileWriter::waitForWritten(WaitMs));
    QSslConfiguration::setDefaultConfiguration(m_usualTrust);
}

void tst_EncryptedDelivery::trustServer() const
{
    QSslConfiguration trust = m_usualTrust;
    trust.addCaCertificate(m_certificate);
    QSslConfiguration::setDefaultConfiguration(trust);
}

// Until it is taken or given up. The server runs on this thread.
void tst_EncryptedDelivery::post(const OutboxLimits& limits)
{
    ReportOutbox reports({}, m_folder->path(), m_server->url(QStringLiteral("https")), limits);
    reports.postCode(QStringLiteral("manager"), 7);
    const std::future<void> delivery =
        std::async(std::launch::async, [&reports] { reports.deliver(1h); });
    QTRY_VERIFY_WITH_TIMEOUT(delivery.wait_for(0s) == std::future_status::ready, 20000);
}

int tst_EncryptedDelivery::waitingReports() const
{
    FileWriter::waitForWritten(WaitMs);
    const QDir folder(m_folder->filePath(QStringLiteral("outbox")));
    return int(folder.entryList(QDir::Files | QDir::Hidden).size());
}

void tst_EncryptedDelivery::knownServerTakesAReport()
{
    trustServer();
    post(oneTry());
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(waitingReports(), 0);
}

// The authority of a school, without the rights to install it.
void tst_EncryptedDelivery::knownByTheEnvironment()
{
    QFile file(m_folder->filePath(QStringLiteral("authority.pem")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_certificate.toPem()) > 0);
    file.close();
    qputenv("SSL_CERT_FILE", file.fileName().toLocal8Bit());
    post(oneTry());
    qunsetenv("SSL_CERT_FILE");
    QCOMPARE(m_server->requests().size(), 1);
    QCOMPARE(waitingReports(), 0);
}

void tst_EncryptedDelivery::namedFileWithoutCertificates()
{
    const QRegularExpression warning(QStringLiteral("^SSL_CERT_FILE names no certificates: /"));
    QTest::ignoreMessage(QtWarningMsg, warning);
    qputenv("SSL_CERT_FILE", m_folder->filePath(QStringLiteral("none.pem")).toLocal8Bit());
    post(oneTry());
    qunsetenv("SSL_CERT_FILE");
    QVERIFY(m_server->requests().isEmpty());
    QCOMPARE(waitingReports(), 1);
}

void tst_EncryptedDelivery::strangersCertificateIsRefused()
{
    post(oneTry());
    QVERIFY(m_server->requests().isEmpty());
    QCOMPARE(waitingReports(), 1);
}

// Long before the time limit of 15 s.
void tst_EncryptedDelivery::floodOfHeadersIsCutOff()
{
    constexpr int EnoughMs = 3000;
    OutboxLimits limits = oneTry();
    limits.maxHeadBytes = 256 * 1024;
    trustServer();
    m_server->setBehaviour(HttpServer::Behaviour::HeaderFlood);
    QElapsedTimer clock;
    clock.start();
    post(limits);
    qInfo("%lld ms, %lld bytes", clock.elapsed(), m_server->flooded());
    QVERIFY2(clock.elapsed() < EnoughMs, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(m_server->flooded() > limits.maxHeadBytes);
    QCOMPARE(waitingReports(), 1);
}

QTEST_GUILESS_MAIN(tst_EncryptedDelivery)
#include "tst_EncryptedDelivery.moc"
