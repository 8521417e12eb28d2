// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/CoturnServer.h"

#include "platform/backend/StunServer.h"
#include "tests/devices/UdpAnswer.h"

CoturnServer::CoturnServer(const QString& address)
    : m_address(address), m_port(TestSupport::freeUdpPort(QHostAddress(address)))
{
}

bool CoturnServer::start()
{
    // Paths are those of its own folder.
    const bool hasStarted = m_process.start(
        QStringLiteral("turnserver"),
        {QStringLiteral("-n"), QStringLiteral("--no-auth"), QStringLiteral("--stun-only"),
         QStringLiteral("--listening-ip=") + m_address,
         QStringLiteral("--listening-port=%1").arg(m_port), QStringLiteral("--no-tls"),
         QStringLiteral("--no-dtls"), QStringLiteral("--no-cli"), QStringLiteral("--no-tcp"),
         QStringLiteral("--pidfile=pid"), QStringLiteral("--log-file=stdout"),
         QStringLiteral("--simple-log"), QStringLiteral("--userdb=db")});
    if (m_port == 0 || !hasStarted) {
        return false;
    }
    // A binding request without attributes (RFC 5389): type, length, magic cookie, transaction.
    const QByteArray request = QByteArray::fromHex("000100002112a442") + "transaction1";
    return TestSupport::waitForUdpAnswer(m_process, QHostAddress(m_address), m_port, request);
}

void CoturnServer::kill()
{
    m_process.kill();
}

Platform::StunServer CoturnServer::server() const
{
    return {m_address, m_port};
}
