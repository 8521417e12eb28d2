// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/StunServer.h"

#include <QTest>

using namespace Platform;

class tst_StunServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromText_data();
    void fromText();
    void records_data();
    void records();
    void notOne_data();
    void notOne();
};

void tst_StunServer::fromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("shown");
    QTest::newRow("name") << "stun:stun.example.org:3479"
                          << "stun.example.org" << 3479 << "stun.example.org:3479";
    QTest::newRow("usual port") << "stun:stun.example.org"
                                << "stun.example.org" << 3478 << "stun.example.org";
    QTest::newRow("IPv4") << "stun:192.0.2.1:1"
                          << "192.0.2.1" << 1 << "192.0.2.1:1";
    QTest::newRow("IPv6") << "stun:[2001:db8::1]:65535"
                          << "2001:db8::1" << 65535 << "[2001:db8::1]:65535";
    QTest::newRow("scheme in capitals") << "STUN:localhost:5"
                                        << "localhost" << 5 << "localhost:5";
    QTest::newRow("name alone") << "stun.example.org"
                                << "stun.example.org" << 3478 << "stun.example.org";
    QTest::newRow("name and port") << "localhost:3479"
                                   << "localhost" << 3479 << "localhost:3479";
    QTest::newRow("IPv4 alone") << "192.0.2.1"
                                << "192.0.2.1" << 3478 << "192.0.2.1:3478";
    QTest::newRow("IPv6 alone") << "[2001:db8::1]"
                                << "2001:db8::1" << 3478 << "[2001:db8::1]:3478";
    QTest::newRow("IPv6 and port") << "[2001:db8::1]:1"
                                   << "2001:db8::1" << 1 << "[2001:db8::1]:1";
    QTest::newRow("IPv6, usual port") << "stun:[::1]"
                                      << "::1" << 3478 << "[::1]:3478";
    QTest::newRow("a host of that name") << "stun"
                                         << "stun" << 3478 << "stun:3478";
}

void tst_StunServer::fromText()
{
    QFETCH(QString, text);
    const std::optional<StunServer> server = StunServer::fromText(text);
    QVERIFY(server);
    QTEST(server->host, "host");
    QTEST(int(server->port), "port");
    QTEST(server->toString(), "shown");
}

void tst_StunServer::records_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("mayHaveRecords");
    QTest::newRow("domain") << "example.org" << true;
    QTest::newRow("domain with scheme") << "stun:example.org" << true;
    QTest::newRow("port given") << "example.org:3478" << false;
    QTest::newRow("name without a dot") << "localhost" << false;
    QTest::newRow("IPv4") << "192.0.2.1" << false;
    QTest::newRow("IPv6") << "[2001:db8::1]" << false;
    QTest::newRow("IPv4 in IPv6") << "[::ffff:192.0.2.1]" << false;
}

void tst_StunServer::records()
{
    QFETCH(QString, text);
    QTEST(StunServer::fromText(text)->mayHaveRecords(), "mayHaveRecords");
}

void tst_StunServer::notOne_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"",
                             "stun:",
                             "stun:3478",
                             "3478",
                             ":3478",
                             "localhost:",
                             "[::1]:",
                             "::1",
                             "2001:db8::1",
                             "localhost:0",
                             "localhost:65536",
                             "stun::3478",
                             "stuns:localhost",
                             "turn:localhost",
                             "http://localhost",
                             "stun://localhost:3478",
                             "stun:localhost:0",
                             "stun:localhost:65536",
                             "stun:localhost:-1",
                             "stun:localhost:x",
                             "stun:localhost:3478/path",
                             "stun:a b:3478",
                             "stun:user@localhost:3478",
                             "stun:localhost:3478?transport=udp",
                             "stun:localhost#x",
                             "stun:2001:db8::1:3478",
                             "stun:[2001:db8::1",
                             "stun:<b>:1"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_StunServer::notOne()
{
    QFETCH(QString, text);
    QVERIFY(!StunServer::fromText(text));
}

QTEST_GUILESS_MAIN(tst_StunServer)
#include "tst_StunServer.moc"
