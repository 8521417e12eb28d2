// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/AnswerBudget.h"
#include "platform/devices/network/StunClient.h"
#include "platform/devices/network/StunResponder.h"
#include "tests/devices/Measurement.h"
#include "tests/devices/ThreadCount.h"
#include "tests/support/AtOnce.h"

#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QTest>
#include <QUdpSocket>
#include <memory>
#include <vector>

using namespace Platform;

class tst_StunResponder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWithTheAddress_data();
    void answersWithTheAddress();
    void isMeasured();
    void rejectsUnknownAttributes();
    void ignoresTheRest_data();
    void ignoresTheRest();
    void answersFromTheAddressItWasAskedAt_data();
    void answersFromTheAddressItWasAskedAt();
    void floodTakesFromNobodyElse_data();
    void floodTakesFromNobodyElse();
    void portInUse();
    void endsAtOnce();
};

namespace {

constexpr int PatienceMs = 5000;

// One datagram sent to the responder and what came back in time.
class Client
{
public:
    explicit Client(const StunServer& server, const QHostAddress& own = {})
        : m_address(server.host), m_port(server.port)
    {
        m_socket.bind(own.isNull() ? m_address : own, 0);
    }

    QByteArray ask(const QByteArray& datagram, int patienceMs = PatienceMs)
    {
        send(datagram);
        return receive(patienceMs);
    }

    QByteArray receive(int patienceMs)
    {
        return m_socket.hasPendingDatagrams() || m_socket.waitForReadyRead(patienceMs)
                   ? m_socket.receiveDatagram().data()
                   : QByteArray();
    }

    void send(const QByteArray& datagram) { m_socket.writeDatagram(datagram, m_address, m_port); }

    int countAnswers(int quietMs)
    {
        int count = 0;
        while (m_socket.hasPendingDatagrams() || m_socket.waitForReadyRead(quietMs)) {
            m_socket.receiveDatagram();
            ++count;
        }
        return count;
    }

private:
    const QHostAddress m_address;
    const quint16 m_port;
    QUdpSocket m_socket;
};

} // namespace

void tst_StunResponder::answersWithTheAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("IPv4") << QStringLiteral("127.0.0.1");
    QTest::newRow("IPv6") << QStringLiteral("::1");
}

void tst_StunResponder::answersWithTheAddress()
{
    QFETCH(QString, address);
    const StunResponder responder{QHostAddress(address)};
    if (!QNetworkInterface::allAddresses().contains(QHostAddress(address))) {
        QVERIFY(address == QLatin1String("::1")); // a machine may have no IPv6
        QCOMPARE(int(responder.server().port), 0);
        QVERIFY(!responder.errorString().isEmpty());
        return;
    }
    QCOMPARE(responder.server().host, address);
    QVERIFY2(responder.server().port != 0, qPrintable(responder.errorString()));
    Client client(responder.server());
    StunClient stun;
    const std::optional<StunClient::Request> request = stun.createRequest();
    const std::optional<StunClient::Answer> answer = stun.readAnswer(client.ask(request->datagram));
    QVERIFY(answer);
    QCOMPARE(answer->id, request->id);
    QCOMPARE(answer->clientAddress, QHostAddress(address));
}

void tst_StunResponder::isMeasured()
{
    const StunResponder responder;
    Measurement measurement(responder.server());
    QTRY_COMPARE(measurement.verdicts(), 4);
    QCOMPARE(measurement.figures().lossPercent, 0);
    QVERIFY(measurement.figures().delayMs >= 0 && measurement.figures().delayMs < AtOnceMs);
    QVERIFY(measurement.figures().sent - measurement.figures().answered <= 1);
    QCOMPARE(measurement.clientAddresses(), QStringList(QStringLiteral("127.0.0.1")));
}

void tst_StunResponder::rejectsUnknownAttributes()
{
    const StunResponder responder;
    Client client(responder.server());
    QByteArray request = StunClient().createRequest()->datagram.left(20);
    request[3] = 4; // the length of one attribute, of a kind that must be understood
    const QByteArray answer = client.ask(request + QByteArray::fromHex("7fff0000"));
    QCOMPARE(answer.left(2).toHex(), QByteArray("0111"));
    QCOMPARE(answer.mid(4, 16), request.mid(4, 16));
    QVERIFY(answer.toHex().contains("00000414")); // 420
}

void tst_StunResponder::ignoresTheRest_data()
{
    QTest::addColumn<QByteArray>("datagram");
    const QByteArray request = StunClient().createRequest()->datagram;
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("hello");
    QTest::newRow("half a request") << request.left(10);
    QTest::newRow("too long") << request + "12345678";
    QTest::newRow("a length beyond the end") << QByteArray(request).replace(2, 2, "\xff\xfc");
    QTest::newRow("no cookie") << QByteArray(request).replace(4, 4, "xxxx");
    QTest::newRow("an indication") << QByteArray(request).replace(0, 2, "\x00\x11", 2);
    QTest::newRow("an answer") << QByteArray(request).replace(0, 2, "\x01\x01", 2);
    QTest::newRow("another method") << QByteArray(request).replace(0, 2, "\x00\x03", 2);
    QTest::newRow("a large one") << QByteArray(60000, 'x');
}

void tst_StunResponder::ignoresTheRest()
{
    QFETCH(QByteArray, datagram);
    const StunResponder responder;
    Client client(responder.server());
    StunClient stun;
    client.send(datagram);
    // Answers come in order, so the first one would be to the datagram.
    QVERIFY(stun.readAnswer(client.ask(stun.createRequest()->datagram)));
    QCOMPARE(client.countAnswers(50), 0);
}

void tst_StunResponder::answersFromTheAddressItWasAskedAt_data()
{
    QTest::addColumn<QString>("client");
    QTest::addColumn<QString>("asked");
    QTest::newRow("the same") << "127.0.0.1"
                              << "127.0.0.1";
    QTest::newRow("another") << "127.0.0.1"
                             << "127.0.0.2";
    QTest::newRow("yet another") << "127.0.0.3"
                                 << "127.1.2.3";
    QTest::newRow("IPv6") << "::1"
                          << "::1";
}

void tst_StunResponder::answersFromTheAddressItWasAskedAt()
{
    QFETCH(QString, client);
    QFETCH(QString, asked);
    const StunResponder responder(QHostAddress::Any);
    QVERIFY2(responder.server().port != 0, qPrintable(responder.errorString()));
    if (!QNetworkInterface::allAddresses().contains(QHostAddress(QHostAddress::LocalHostIPv6)) &&
        client.contains(QLatin1Char(':'))) {
        return; // a machine may have no IPv6
    }
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress(client), 0));
    StunClient stun;
    const QByteArray request = stun.createRequest()->datagram;
    socket.writeDatagram(request, QHostAddress(asked), responder.server().port);
    QVERIFY(socket.waitForReadyRead(PatienceMs));
    const QNetworkDatagram datagram = socket.receiveDatagram();
    QCOMPARE(datagram.senderAddress(), QHostAddress(asked));
    QCOMPARE(quint16(datagram.senderPort()), responder.server().port);
    const std::optional<StunClient::Answer> answer = stun.readAnswer(datagram.data());
    QVERIFY(answer);
    QCOMPARE(answer->clientAddress, QHostAddress(client));
}

void tst_StunResponder::floodTakesFromNobodyElse_data()
{
    QTest::addColumn<QString>("flooder");
    QTest::addColumn<QString>("honest"); // the last number is added
    QTest::newRow("hosts") << "127.0.0.9"
                           << "127.0.1.";
    QTest::newRow("behind one address") << "127.0.0.9"
                                        << "127.0.0.8";
    QTest::newRow("all behind one address") << "127.0.0.9"
                                            << "127.0.0.9";
}

void tst_StunResponder::floodTakesFromNobodyElse()
{
    constexpr int HonestClients = 59;
    constexpr int FloodRounds = 40;
    constexpr int Rounds = 10; // what a check asks in a second
    QFETCH(QString, flooder);
    QFETCH(QString, honest);
    const StunResponder responder(QHostAddress::Any);
    const StunServer server{QStringLiteral("127.0.0.1"), responder.server().port};
    Client flood(server, QHostAddress(flooder));
    std::vector<std::unique_ptr<Client>> clients;
    for (int number = 1; number <= HonestClients; ++number) {
        const QString address =
            honest.endsWith(QLatin1Char('.')) ? honest + QString::number(number) : honest;
        clients.push_back(std::make_unique<Client>(server, QHostAddress(address)));
    }
    const QByteArray request = StunClient().createRequest()->datagram;
    // In small portions, so that no queue overflows: only a limit can be why answers are missing.
    int floodAnswers = 0;
    for (int round = 0; round < FloodRounds; ++round) {
        for (int count = 0; count < 50; ++count) {
            flood.send(request);
        }
        floodAnswers += flood.countAnswers(5);
    }
    QVERIFY2(floodAnswers >= AnswerBudget::PerClient && floodAnswers < FloodRounds * 50 / 2,
             qPrintable(QString::number(floodAnswers)));
    for (int round = 0; round < Rounds; ++round) {
        flood.send(request);
        for (const std::unique_ptr<Client>& client : clients) {
            client->send(request);
        }
        for (const std::unique_ptr<Client>& client : clients) {
            QVERIFY(!client->receive(PatienceMs).isEmpty());
        }
    }
    // The limit is no end.
    StunClient stun;
    QTRY_VERIFY(stun.readAnswer(flood.ask(stun.createRequest()->datagram, 100)));
}

void tst_StunResponder::portInUse()
{
    const StunResponder first;
    const StunResponder second(QHostAddress::LocalHost, first.server().port);
    QCOMPARE(int(second.server().port), 0);
    QVERIFY(!second.errorString().isEmpty());
}

void tst_StunResponder::endsAtOnce()
{
    quint16 port = 0;
    QElapsedTimer clock;
    {
        const StunResponder responder;
        port = responder.server().port;
        QTRY_COMPARE(threadCount("StunResponder"), 1);
        clock.start();
    }
    QVERIFY(clock.elapsed() < AtOnceMs);
    QTRY_COMPARE(threadCount("StunResponder"), 0);
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost), port, QUdpSocket::DontShareAddress));
}

QTEST_GUILESS_MAIN(tst_StunResponder)
#include "tst_StunResponder.moc"
