// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/NameServer.h"

#include "tests/devices/UdpAnswer.h"

bool NameServer::start(const QStringList& records)
{
    m_port = TestSupport::freeUdpPort(QHostAddress(QHostAddress::LocalHost));
    const QStringList options = {
        QStringLiteral("--keep-in-foreground"), QStringLiteral("--conf-file=/dev/null"),
        QStringLiteral("--pid-file="),          QStringLiteral("--user="),
        QStringLiteral("--no-resolv"),          QStringLiteral("--no-hosts"),
        QStringLiteral("--bind-interfaces"),    QStringLiteral("--listen-address=127.0.0.1"),
        QStringLiteral("--local=/test/"),       QStringLiteral("--port=%1").arg(m_port)};
    if (m_port == 0 || !m_process.start(QStringLiteral("dnsmasq"), options + records)) {
        return false;
    }
    // A question for the address of the root: identity, flags, one question, name, type, class.
    const QByteArray question = QByteArray::fromHex("123401000001000000000000"
                                                    "0000010001");
    return TestSupport::waitForUdpAnswer(m_process, QHostAddress(QHostAddress::LocalHost), m_port,
                                         question);
}

QString NameServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}
