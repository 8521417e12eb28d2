// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ServerLookup.h"
#include "tests/devices/CoturnServer.h"
#include "tests/devices/Measurement.h"
#include "tests/devices/NameServer.h"

#include <QNetworkDatagram>
#include <QUdpSocket>
#include <QtTest>

using namespace Platform;

// The lookup against a real name server, and against one that says nothing.
class tst_ServerLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void answers_data();
    void answers();
    void silentNameServer();
    void nobodyAtTheNameServer();
    void endsAtOnce();
    void calledByItsOwnEnd();
    void probeGoesWhereTheRecordSays();
    void probeGoesOnToTheNextServer();
    void portGivenMeansNoRecord();
    void domainWithoutServer();

private:
    static QStringList found(const QString& domain, const QString& nameserver);
    StunServer domain(const char* name) const;

    NameServer m_names;
    CoturnServer m_coturn;
    QUdpSocket m_silent;
};

namespace {

constexpr int EndsWithinMs = 50;

QString record(const QString& domain, const QString& target, int port, int priority)
{
    return QStringLiteral("--srv-host=_stun._udp.%1,%2,%3,%4,0")
        .arg(domain, target, QString::number(port), QString::number(priority));
}

QString addressOf(const QUdpSocket& socket)
{
    return QStringLiteral("127.0.0.1:%1").arg(socket.localPort());
}

} // namespace

void tst_ServerLookup::initTestCase()
{
    QVERIFY2(m_coturn.start(), "turnserver (package coturn) doesn't start");
    QVERIFY(m_silent.bind(QHostAddress(QHostAddress::LocalHost), 0));
    QUdpSocket closed;
    QVERIFY(closed.bind(QHostAddress(QHostAddress::LocalHost), 0));
    const int nobody = closed.localPort();
    const int port = m_coturn.server().port;
    const QString local = QStringLiteral("localhost");
    QVERIFY2(m_names.start({record(QStringLiteral("one.test"), local, port, 0),
                            record(QStringLiteral("two.test"), QStringLiteral("b.test"), 2222, 20),
                            record(QStringLiteral("two.test"), QStringLiteral("a.test"), 1111, 10),
                            record(QStringLiteral("xn--bcher-kva.test"), local, 4444, 0),
                            record(QStringLiteral("next.test"), local, nobody, 1),
                            record(QStringLiteral("next.test"), local, port, 2),
                            QStringLiteral("--srv-host=_stun._udp.none.test")}),
             "dnsmasq (package dnsmasq-base) doesn't start");
}

QStringList tst_ServerLookup::found(const QString& domain, const QString& nameserver)
{
    QStringList result;
    bool isDone = false;
    const ServerLookup lookup(domain, nameserver, [&](const std::vector<StunServer>& servers) {
        isDone = true;
        for (const StunServer& server : servers) {
            result << server.toString();
        }
    });
    [&isDone] { QTRY_VERIFY(isDone); }();
    return result;
}

StunServer tst_ServerLookup::domain(const char* name) const
{
    return StunServer::fromText(QLatin1String(name)).value();
}

void tst_ServerLookup::answers_data()
{
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("servers");
    QTest::newRow("two, by priority") << "two.test"
                                      << "a.test:1111 b.test:2222";
    QTest::newRow("no record") << "plain.test"
                               << "plain.test:3478";
    QTest::newRow("the domain has no server") << "none.test"
                                              << "";
    QTest::newRow("refused by the name server") << "elsewhere.example"
                                                << "elsewhere.example:3478";
    QTest::newRow("not in ASCII") << QStringLiteral("b\u00fccher.test") << "localhost:4444";
}

void tst_ServerLookup::answers()
{
    QFETCH(QString, domain);
    QElapsedTimer clock;
    clock.start();
    QTEST(found(domain, m_names.address()).join(QLatin1Char(' ')), "servers");
    QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
}

void tst_ServerLookup::silentNameServer()
{
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(found(QStringLiteral("one.test"), addressOf(m_silent)),
             QStringList(QStringLiteral("one.test:3478")));
    QVERIFY2(clock.elapsed() < ServerLookup::DeadlineMs + 500,
             qPrintable(QString::number(clock.elapsed())));
    QVERIFY(m_silent.hasPendingDatagrams()); // it was asked
}

void tst_ServerLookup::nobodyAtTheNameServer()
{
    QUdpSocket closed;
    QVERIFY(closed.bind(QHostAddress(QHostAddress::LocalHost), 0));
    const QString address = addressOf(closed);
    closed.close();
    QCOMPARE(found(QStringLiteral("one.test"), address),
             QStringList(QStringLiteral("one.test:3478")));
}

void tst_ServerLookup::endsAtOnce()
{
    QElapsedTimer clock;
    bool isDone = false;
    {
        const ServerLookup lookup(QStringLiteral("one.test"), addressOf(m_silent),
                                  [&isDone](const std::vector<StunServer>&) { isDone = true; });
        QCoreApplication::processEvents();
        clock.start();
    }
    QVERIFY(clock.elapsed() < EndsWithinMs);
    QCoreApplication::processEvents();
    QVERIFY(!isDone);

    Measurement measurement(domain("one.test"), addressOf(m_silent));
    QTRY_COMPARE(measurement.verdicts(), 1);
    QVERIFY(measurement.end() < EndsWithinMs);
}

void tst_ServerLookup::calledByItsOwnEnd()
{
    QPointer<ServerLookup> lookup;
    int calls = 0;
    lookup = new ServerLookup(QStringLiteral("one.test"), m_names.address(),
                              [&](const std::vector<StunServer>&) {
                                  ++calls;
                                  lookup->deleteLater();
                              });
    QTRY_VERIFY(lookup.isNull());
    QCOMPARE(calls, 1);
}

void tst_ServerLookup::probeGoesWhereTheRecordSays()
{
    const Measurement measurement(domain("one.test"), m_names.address());
    QTRY_VERIFY(measurement.figures().answered > 5);
    QCOMPARE(measurement.figures().problem, NetworkProblem::None);
}

void tst_ServerLookup::probeGoesOnToTheNextServer()
{
    const Measurement measurement(domain("next.test"), m_names.address());
    QTRY_VERIFY_WITH_TIMEOUT(measurement.figures().answered > 5, 15000);
}

void tst_ServerLookup::portGivenMeansNoRecord()
{
    while (m_silent.hasPendingDatagrams()) {
        m_silent.receiveDatagram();
    }
    for (const char* name : {"localhost", "127.0.0.1", "one.invalid:3478"}) {
        Measurement measurement(domain(name), addressOf(m_silent));
        QTRY_COMPARE(measurement.verdicts(), 1);
    }
    QVERIFY(!m_silent.hasPendingDatagrams());
}

void tst_ServerLookup::domainWithoutServer()
{
    const Measurement measurement(domain("none.test"), m_names.address());
    QTRY_COMPARE(measurement.figures().problem, NetworkProblem::NoSuchHost);
    QTRY_COMPARE_WITH_TIMEOUT(measurement.figures().lossPercent, 100, 10000);
}

QTEST_GUILESS_MAIN(tst_ServerLookup)
#include "tst_ServerLookup.moc"
