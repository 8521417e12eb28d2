// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ProbeSocket.h"

#include "platform/devices/network/Datagrams.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QUdpSocket>

namespace Platform {

class ProbeSocket::System
{
public:
    Outcome outcome() const
    {
        switch (socket.error()) {
        case QAbstractSocket::ConnectionRefusedError:
            return Outcome::Refused;
        case QAbstractSocket::NetworkError:
            return Outcome::NoRoute;
        case QAbstractSocket::TemporaryError:
        case QAbstractSocket::SocketResourceError:
            return Outcome::Later;
        default:
            return Outcome::Broken;
        }
    }

    QUdpSocket socket;
};

ProbeSocket::ProbeSocket(const QHostAddress& address, quint16 port)
    : m_system(std::make_unique<System>())
{
    m_system->socket.setProxy(QNetworkProxy::NoProxy);
    connect(&m_system->socket, &QUdpSocket::readyRead, this, &ProbeSocket::readyRead);
    m_system->socket.connectToHost(address, port);
}

ProbeSocket::~ProbeSocket() = default;

bool ProbeSocket::isOpen() const
{
    return m_system->socket.state() == QAbstractSocket::ConnectedState;
}

QString ProbeSocket::errorString() const
{
    return m_system->socket.errorString();
}

ProbeSocket::Outcome ProbeSocket::send(const QByteArray& datagram)
{
    const qint64 sent = m_system->socket.write(datagram);
    if (sent == datagram.size()) {
        return Outcome::Done;
    }
    // The kernel reports the refusal of an earlier datagram once, in place of sending this one. Qt
    // has no error of its own for that.
    const bool isSentNow = sent < 0 && m_system->socket.write(datagram) == datagram.size();
    return isSentNow ? Outcome::Refused : m_system->outcome();
}

ProbeSocket::Outcome ProbeSocket::receive(QByteArray& datagram)
{
    const QNetworkDatagram received = m_system->socket.receiveDatagram(MaxDatagramSize);
    if (!received.isValid()) {
        return m_system->outcome();
    }
    datagram = received.data();
    return Outcome::Done;
}

} // namespace Platform
