// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunAnswerer.h"
#include "platform/devices/network/StunClient.h"

#include <QFile>
#include <QTest>
#include <vector>

using namespace Platform;

class tst_StunClient : public QObject
{
    Q_OBJECT

private Q_SLOTS:
#ifndef Q_OS_WIN
    void libraryIsLoadedForTheFirstRequest(); // the first test, because the others load it
#endif
    void requestIsABindingRequest();
    void answerTellsTheAddress_data();
    void answerTellsTheAddress();
    void answerIsReadOnce();
    void forgottenRequestHasNoAnswer();
    void openRequestsAreBounded();
    void damagedAnswers();
};

#ifndef Q_OS_WIN
void tst_StunClient::libraryIsLoadedForTheFirstRequest()
{
    const auto isLoaded = [] {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/libnice.so");
    };
    StunClient client;
    const StunAnswerer answerer;
    QVERIFY(!isLoaded());
    QVERIFY(client.createRequest());
    QVERIFY(isLoaded());
}
#endif

void tst_StunClient::requestIsABindingRequest()
{
    StunClient client;
    const std::optional<StunClient::Request> request = client.createRequest();
    QVERIFY(request);
    QVERIFY(request->datagram.size() >= 20);
    QCOMPARE(request->datagram.left(2).toHex(), QByteArray("0001"));
    QCOMPARE(request->datagram.mid(4, 4).toHex(), QByteArray("2112a442"));
    QCOMPARE(request->datagram.mid(4, 16),
             QByteArray(reinterpret_cast<const char*>(request->id.data()), 16));
}

void tst_StunClient::answerTellsTheAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("IPv4") << QStringLiteral("203.0.113.7");
    QTest::newRow("IPv6") << QStringLiteral("2001:db8::7");
}

void tst_StunClient::answerTellsTheAddress()
{
    QFETCH(QString, address);
    StunClient client;
    const std::optional<StunClient::Request> request = client.createRequest();
    const std::optional<StunClient::Answer> answer =
        client.readAnswer(StunAnswerer().answer(request->datagram, QHostAddress(address), 4711));
    QVERIFY(answer);
    QCOMPARE(answer->id, request->id);
    QCOMPARE(answer->clientAddress.toString(), address);
}

void tst_StunClient::answerIsReadOnce()
{
    StunClient client;
    const QByteArray answer = StunAnswerer().answer(client.createRequest()->datagram,
                                                    QHostAddress(QHostAddress::LocalHost), 1);
    QVERIFY(client.readAnswer(answer));
    QVERIFY(!client.readAnswer(answer));
}

void tst_StunClient::forgottenRequestHasNoAnswer()
{
    StunClient client;
    const std::optional<StunClient::Request> request = client.createRequest();
    client.forget(request->id);
    QVERIFY(!client.readAnswer(
        StunAnswerer().answer(request->datagram, QHostAddress(QHostAddress::LocalHost), 1)));
}

void tst_StunClient::openRequestsAreBounded()
{
    StunClient client;
    std::vector<StunId> open;
    while (const std::optional<StunClient::Request> request = client.createRequest()) {
        open.push_back(request->id);
        QVERIFY(open.size() <= 200);
    }
    QCOMPARE(open.size(), size_t(200));
    client.forget(open.front());
    QVERIFY(client.createRequest());
    QVERIFY(!client.createRequest());
}

// Every cut, and every bit of the header flipped.
void tst_StunClient::damagedAnswers()
{
    StunClient client;
    const std::optional<StunClient::Request> request = client.createRequest();
    const QByteArray answer =
        StunAnswerer().answer(request->datagram, QHostAddress(QHostAddress::LocalHost), 1);
    for (int length = 0; length < answer.size(); ++length) {
        QVERIFY2(!client.readAnswer(answer.left(length)), qPrintable(QString::number(length)));
    }
    constexpr int HeaderBits = 20 * 8;
    for (int bit = 0; bit < HeaderBits; ++bit) {
        QByteArray damaged = answer;
        damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << bit % 8));
        QVERIFY2(!client.readAnswer(damaged), qPrintable(QString::number(bit)));
    }
}

QTEST_GUILESS_MAIN(tst_StunClient)
#include "tst_StunClient.moc"
