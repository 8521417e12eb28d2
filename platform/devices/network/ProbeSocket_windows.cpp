// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ProbeSocket.h"

#include "platform/devices/network/Datagrams.h"
#include "platform/devices/network/SocketAddress.h"

#include <QSocketNotifier>

namespace Platform {

namespace {

ProbeSocket::Outcome outcomeOf(int error)
{
    using Outcome = ProbeSocket::Outcome;
    switch (error) {
    case WSAECONNRESET: // Windows' word for it at datagrams
    case WSAECONNREFUSED:
        return Outcome::Refused;
    case WSAENETUNREACH:
    case WSAEHOSTUNREACH:
    case WSAENETDOWN:
    case WSAEHOSTDOWN:
    case WSAENETRESET: // no router was left that could pass it on
    case WSAEADDRNOTAVAIL:
        return Outcome::NoRoute;
    case WSAEWOULDBLOCK:
    case WSAENOBUFS:
        return Outcome::Later;
    default:
        return Outcome::Broken;
    }
}

} // namespace

class ProbeSocket::System
{
public:
    System(const QHostAddress& address, quint16 port)
    {
        NetworkSystem::begin();
        const SocketAddress server(address, port);
        m_socket = WSASocketW(server.storage.ss_family, SOCK_DGRAM, IPPROTO_UDP, nullptr, 0,
                              WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
        u_long isNonBlocking = 1;
        if (m_socket == INVALID_SOCKET || ioctlsocket(m_socket, FIONBIO, &isNonBlocking) != 0 ||
            ::connect(m_socket, reinterpret_cast<const sockaddr*>(&server.storage), server.size) !=
                0) {
            m_error = WSAGetLastError();
            return;
        }
        m_notifier = std::make_unique<QSocketNotifier>(qintptr(m_socket), QSocketNotifier::Read);
    }

    ~System()
    {
        m_notifier.reset(); // it must not watch a closed socket
        if (m_socket != INVALID_SOCKET) {
            closesocket(m_socket);
        }
    }

    System(const System&) = delete;
    System& operator=(const System&) = delete;

    SOCKET socket() const { return m_socket; }
    int error() const { return m_error; }
    QSocketNotifier* notifier() const { return m_notifier.get(); } // null if it isn't open

private:
    SOCKET m_socket = INVALID_SOCKET;
    int m_error = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

ProbeSocket::ProbeSocket(const QHostAddress& address, quint16 port)
    : m_system(std::make_unique<System>(address, port))
{
    if (isOpen()) {
        connect(m_system->notifier(), &QSocketNotifier::activated, this, &ProbeSocket::readyRead);
    }
}

ProbeSocket::~ProbeSocket() = default;

bool ProbeSocket::isOpen() const
{
    return m_system->notifier() != nullptr;
}

QString ProbeSocket::errorString() const
{
    return qt_error_string(m_system->error());
}

ProbeSocket::Outcome ProbeSocket::send(const QByteArray& datagram)
{
    const auto send = [&] {
        const int sent = ::send(m_system->socket(), datagram.constData(), datagram.size(), 0);
        return sent == datagram.size() ? Outcome::Done : outcomeOf(WSAGetLastError());
    };
    const Outcome outcome = send();
    if (outcome == Outcome::Refused) { // told in place of sending this one
        send();
    }
    return outcome;
}

ProbeSocket::Outcome ProbeSocket::receive(QByteArray& datagram)
{
    QByteArray buffer(MaxDatagramSize, Qt::Uninitialized);
    int size = ::recv(m_system->socket(), buffer.data(), buffer.size(), 0);
    if (size < 0 && WSAGetLastError() == WSAEMSGSIZE) {
        size = buffer.size(); // the rest is cut off
    }
    if (size < 0) {
        return outcomeOf(WSAGetLastError());
    }
    datagram = buffer.left(size);
    return Outcome::Done;
}

} // namespace Platform
