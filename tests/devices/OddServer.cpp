// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/OddServer.h"

#include "platform/backend/StunServer.h"
#include "platform/devices/network/StunAnswerer.h"

#include <QNetworkDatagram>

namespace {

constexpr int IdStart = 4; // behind type and length
constexpr int IdLength = 16;

} // namespace

OddServer::OddServer(Answer answer) : m_answer(std::move(answer))
{
    m_socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
    m_elsewhere.bind(QHostAddress(QHostAddress::LocalHost), 0);
    QObject::connect(&m_socket, &QUdpSocket::readyRead, &m_socket, [this] { readRequests(); });
}

Platform::StunServer OddServer::server() const
{
    return {QStringLiteral("127.0.0.1"), m_socket.localPort()};
}

QByteArray OddServer::rightAnswer(const QNetworkDatagram& request)
{
    return Platform::StunAnswerer().answer(request.data(), request.senderAddress(),
                                           quint16(request.senderPort()));
}

void OddServer::send(const QByteArray& datagram, const QNetworkDatagram& request)
{
    m_socket.writeDatagram(datagram, request.senderAddress(), quint16(request.senderPort()));
}

void OddServer::sendFromElsewhere(const QByteArray& datagram, const QNetworkDatagram& request)
{
    m_elsewhere.writeDatagram(datagram, request.senderAddress(), quint16(request.senderPort()));
}

void OddServer::readRequests()
{
    while (m_socket.hasPendingDatagrams()) {
        const QNetworkDatagram request = m_socket.receiveDatagram();
        m_ids.append(request.data().mid(IdStart, IdLength));
        m_answer(*this, request);
    }
}
