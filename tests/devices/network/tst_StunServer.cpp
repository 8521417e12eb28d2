// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunServer.h"

#include <QTest>

using namespace Platform;

class tst_StunServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromUrl_data();
    void fromUrl();
    void notOne_data();
    void notOne();
};

void tst_StunServer::fromUrl_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("shown");
    QTest::newRow("name") << "stun:stun.example.org:3479"
                          << "stun.example.org" << 3479 << "stun.example.org:3479";
    QTest::newRow("usual port") << "stun:stun.example.org"
                                << "stun.example.org" << 3478 << "stun.example.org:3478";
    QTest::newRow("IPv4") << "stun:192.0.2.1:1"
                          << "192.0.2.1" << 1 << "192.0.2.1:1";
    QTest::newRow("IPv6") << "stun:[2001:db8::1]:65535"
                          << "2001:db8::1" << 65535 << "[2001:db8::1]:65535";
    QTest::newRow("scheme in capitals") << "STUN:localhost:5"
                                        << "localhost" << 5 << "localhost:5";
}

void tst_StunServer::fromUrl()
{
    QFETCH(QString, url);
    const std::optional<StunServer> server = StunServer::fromUrl(url);
    QVERIFY(server);
    QTEST(server->host, "host");
    QTEST(int(server->port), "port");
    QTEST(server->toString(), "shown");
}

void tst_StunServer::notOne_data()
{
    QTest::addColumn<QString>("url");
    for (const char* url : {"",
                            "stun",
                            "stun:",
                            "stun::3478",
                            "localhost:3478",
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
        QTest::newRow(url) << QString::fromLatin1(url);
    }
}

void tst_StunServer::notOne()
{
    QFETCH(QString, url);
    QVERIFY(!StunServer::fromUrl(url));
}

QTEST_GUILESS_MAIN(tst_StunServer)
#include "tst_StunServer.moc"
