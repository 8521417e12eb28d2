// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/HostilePeer.h"

#include <QNetworkDatagram>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

#include <future>

namespace {

constexpr int MostBytes = 1500;
constexpr int Flood = 200;
constexpr int StunHeader = 20;
constexpr int StunIdStart = 4;
constexpr int DnsHeader = 12;

} // namespace

HostilePeer::HostilePeer(Kind kind, quint32 seed) : m_kind(kind), m_random(seed)
{
    auto* const context = new QObject; // lives on the thread
    context->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, context, &QObject::deleteLater);
    m_thread.start();
    std::promise<void> ready;
    QMetaObject::invokeMethod(context, [this, context, &ready] {
        if (m_kind == Kind::Stun || m_kind == Kind::Dns) {
            auto* const socket = new QUdpSocket(context);
            socket->bind(QHostAddress(QHostAddress::LocalHost), 0);
            QObject::connect(socket, &QUdpSocket::readyRead, socket,
                             [this, socket] { answerDatagrams(socket); });
            m_port = socket->localPort();
        } else {
            auto* const server = new QTcpServer(context);
            server->listen(QHostAddress(QHostAddress::LocalHost), 0);
            QObject::connect(server, &QTcpServer::newConnection, server, [this, server] {
                while (QTcpSocket* const socket = server->nextPendingConnection()) {
                    QObject::connect(socket, &QTcpSocket::readyRead, socket,
                                     [this, socket] { answerConnection(socket); });
                }
            });
            m_port = server->serverPort();
        }
        ready.set_value();
    });
    ready.get_future().wait();
}

HostilePeer::~HostilePeer()
{
    m_thread.quit();
    m_thread.wait();
}

void HostilePeer::answerDatagrams(QUdpSocket* socket)
{
    while (socket->hasPendingDatagrams()) {
        const QNetworkDatagram request = socket->receiveDatagram();
        const int count = m_random.bounded(10) == 0 ? Flood : 1 + m_random.bounded(2);
        for (int i = 0; i < count; ++i) {
            const QByteArray answer =
                m_kind == Kind::Stun ? badStun(request.data()) : badDns(request.data());
            socket->writeDatagram(answer, request.senderAddress(), quint16(request.senderPort()));
            ++m_answers;
        }
    }
}

void HostilePeer::answerConnection(QTcpSocket* socket)
{
    socket->readAll();
    ++m_answers;
    socket->write(m_kind == Kind::Http ? badHttp() : badTls());
    switch (m_random.bounded(3)) {
    case 0:
        socket->abort();
        break;
    case 1:
        socket->disconnectFromHost();
        break;
    default: // and stays silent
        break;
    }
}

QByteArray HostilePeer::noise(int length)
{
    QByteArray result(length, 0);
    for (char& byte : result) {
        byte = char(m_random.bounded(256));
    }
    return result;
}

// A few bytes changed, or cut off, or too long.
void HostilePeer::spoil(QByteArray& message)
{
    for (int i = m_random.bounded(4); i > 0 && !message.isEmpty(); --i) {
        message[m_random.bounded(message.size())] = char(m_random.bounded(256));
    }
    if (m_random.bounded(3) == 0) {
        message.truncate(m_random.bounded(message.size() + 1));
    } else if (m_random.bounded(4) == 0) {
        message += noise(m_random.bounded(MostBytes));
    }
}

// An answer to this request, whose attributes are noise with lengths that may be wrong.
QByteArray HostilePeer::badStun(const QByteArray& request)
{
    if (m_random.bounded(4) == 0) {
        return noise(m_random.bounded(MostBytes));
    }
    const QByteArray attributes = QByteArray::fromHex("00200008") + noise(m_random.bounded(40));
    QByteArray answer = QByteArray::fromHex("0101");
    answer += char(0);
    answer += char(attributes.size());
    answer += request.mid(StunIdStart, StunHeader - StunIdStart);
    answer += attributes;
    spoil(answer);
    return answer;
}

// Answers with names that point at themselves and counts that are wrong.
QByteArray HostilePeer::badDns(const QByteArray& request)
{
    if (m_random.bounded(4) == 0) {
        return noise(m_random.bounded(MostBytes));
    }
    QByteArray answer = request.left(2) + QByteArray::fromHex("81800001000500000000");
    answer += request.mid(DnsHeader);
    const QByteArray loop = QByteArray::fromHex("c00cc00c");
    for (int i = m_random.bounded(5); i > 0; --i) {
        answer += QByteArray::fromHex("c00c00210001000000050008") + noise(6) + loop;
    }
    spoil(answer);
    return answer;
}

QByteArray HostilePeer::badHttp()
{
    switch (m_random.bounded(6)) {
    case 0:
        return noise(m_random.bounded(MostBytes));
    case 1:
        return "HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:" + QByteArray::number(m_port) +
               "/\r\nContent-Length: 0\r\n\r\n";
    case 2:
        return "HTTP/1.1 " + QByteArray(100000, '9') + "\r\n\r\n";
    case 3:
        return "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\n";
    case 4:
        return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nffffffffffffffff\r\nx\r\n";
    default:
        return "HTTP/1.1 200 OK\r\n" + QByteArray(1000, 'X').replace("X", "X-A: b\r\n");
    }
}

QByteArray HostilePeer::badTls()
{
    switch (m_random.bounded(4)) {
    case 0:
        return noise(m_random.bounded(MostBytes));
    case 1:
        return QByteArray::fromHex("15030300020228"); // handshake failure
    case 2:                                           // a greeting that is cut off
        return QByteArray::fromHex("160303") + noise(2) + QByteArray::fromHex("0200004603") +
               noise(m_random.bounded(70));
    default:
        return "HTTP/1.1 400 Bad Request\r\n\r\n";
    }
}
