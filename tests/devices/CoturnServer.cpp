// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/CoturnServer.h"

#include "platform/backend/StunServer.h"

#include <QElapsedTimer>
#include <QUdpSocket>

namespace {

constexpr int StartTimeoutMs = 10000;
constexpr int AnswerTimeoutMs = 50;

quint16 freePort(const QString& address)
{
    QUdpSocket socket;
    return socket.bind(QHostAddress(address), 0) ? socket.localPort() : quint16(0);
}

} // namespace

CoturnServer::CoturnServer(const QString& address) : m_address(address), m_port(freePort(address))
{
}

CoturnServer::~CoturnServer()
{
    kill();
}

bool CoturnServer::start()
{
    m_process.setStandardOutputFile(m_folder.filePath(QStringLiteral("log")));
    m_process.setStandardErrorFile(m_folder.filePath(QStringLiteral("errors")));
    m_process.start(QStringLiteral("turnserver"),
                    {QStringLiteral("-n"), QStringLiteral("--no-auth"),
                     QStringLiteral("--stun-only"), QStringLiteral("--listening-ip=") + m_address,
                     QStringLiteral("--listening-port=%1").arg(m_port), QStringLiteral("--no-tls"),
                     QStringLiteral("--no-dtls"), QStringLiteral("--no-cli"),
                     QStringLiteral("--no-tcp"),
                     QStringLiteral("--pidfile=") + m_folder.filePath(QStringLiteral("pid")),
                     QStringLiteral("--log-file=stdout"), QStringLiteral("--simple-log"),
                     QStringLiteral("--userdb=") + m_folder.filePath(QStringLiteral("db"))});
    if (m_port == 0 || !m_process.waitForStarted()) {
        return false;
    }
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < StartTimeoutMs && m_process.state() == QProcess::Running) {
        if (answers()) {
            return true;
        }
    }
    return false;
}

void CoturnServer::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

Platform::StunServer CoturnServer::server() const
{
    return {m_address, m_port};
}

bool CoturnServer::answers() const
{
    // A binding request without attributes (RFC 5389): type, length, magic cookie, transaction.
    const QByteArray request = QByteArray::fromHex("000100002112a442") + "transaction1";
    QUdpSocket socket;
    socket.bind(QHostAddress(m_address), 0);
    socket.writeDatagram(request, QHostAddress(m_address), m_port);
    return socket.waitForReadyRead(AnswerTimeoutMs);
}
