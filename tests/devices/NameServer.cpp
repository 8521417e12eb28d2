// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/NameServer.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QUdpSocket>

namespace {

constexpr int StartTimeoutMs = 10000;
constexpr int AnswerTimeoutMs = 50;

} // namespace

bool NameServer::start(const QStringList& records)
{
    QUdpSocket trial;
    m_port = trial.bind(QHostAddress(QHostAddress::LocalHost), 0) ? trial.localPort() : quint16(0);
    trial.close();
    const QStringList options = {
        QStringLiteral("--keep-in-foreground"), QStringLiteral("--conf-file=/dev/null"),
        QStringLiteral("--pid-file="),          QStringLiteral("--user="),
        QStringLiteral("--no-resolv"),          QStringLiteral("--no-hosts"),
        QStringLiteral("--bind-interfaces"),    QStringLiteral("--listen-address=127.0.0.1"),
        QStringLiteral("--local=/test/"),       QStringLiteral("--port=%1").arg(m_port)};
    m_process.start(QStringLiteral("dnsmasq"), options + records);
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

NameServer::~NameServer()
{
    m_process.kill();
    m_process.waitForFinished();
}

QString NameServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

bool NameServer::answers() const
{
    // A question for the address of the root: identity, flags, one question, name, type, class.
    const QByteArray question = QByteArray::fromHex("123401000001000000000000"
                                                    "0000010001");
    QUdpSocket socket;
    socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
    socket.writeDatagram(question, QHostAddress(QHostAddress::LocalHost), m_port);
    return socket.waitForReadyRead(AnswerTimeoutMs);
}
