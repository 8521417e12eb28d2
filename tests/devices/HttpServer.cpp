// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/HttpServer.h"

#include <QRegularExpression>
#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

HttpServer::HttpServer() : HttpServer(std::make_unique<QTcpServer>())
{
}

HttpServer::HttpServer(std::unique_ptr<QTcpServer> listener) : m_server(std::move(listener))
{
    QObject::connect(m_server.get(), &QTcpServer::newConnection, m_server.get(),
                     [this] { takeConnection(); });
    listen();
}

HttpServer::~HttpServer()
{
    // Its sockets die with the server and must not call back then.
    const QList<QTcpSocket*> sockets = m_received.keys();
    for (QTcpSocket* socket : sockets) {
        socket->disconnect();
    }
}

void HttpServer::listen()
{
    m_server->listen(QHostAddress::LocalHost, m_port);
    m_port = m_server->serverPort();
}

void HttpServer::refuse()
{
    m_server->close();
    const QList<QTcpSocket*> sockets = m_received.keys();
    for (QTcpSocket* socket : sockets) {
        socket->abort();
    }
}

QString HttpServer::url(const QString& scheme) const
{
    return QStringLiteral("%1://127.0.0.1:%2/reports?from=check").arg(scheme).arg(m_port);
}

void HttpServer::setStatus(const QByteArray& status)
{
    m_behaviour = Behaviour::Status;
    m_status = status;
}

void HttpServer::takeConnection()
{
    while (QTcpSocket* socket = m_server->nextPendingConnection()) {
        m_received.insert(socket, {});
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, [this, socket] {
            m_received.remove(socket);
            socket->deleteLater();
        });
    }
}

void HttpServer::read(QTcpSocket* socket)
{
    QByteArray& received = m_received[socket];
    received += socket->readAll();
    const int end = received.indexOf("\r\n\r\n");
    if (end < 0) {
        return;
    }
    const QByteArray head = received.left(end);
    static const QRegularExpression lengthPattern(QStringLiteral("content-length: *(\\d+)"),
                                                  QRegularExpression::CaseInsensitiveOption);
    const int length = lengthPattern.match(QString::fromLatin1(head)).captured(1).toInt();
    const QByteArray body = received.mid(end + 4);
    if (body.size() < length) {
        return;
    }
    received.clear();
    m_requests.append({head, body});
    answer(socket);
}

void HttpServer::answer(QTcpSocket* socket)
{
    switch (m_behaviour) {
    case Behaviour::Take:
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok");
        break;
    case Behaviour::TakeLate:
        QTimer::singleShot(LateMs, socket, [socket] {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
        });
        break;
    case Behaviour::SlowBody:
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
        writeEvery(socket, 20, "x");
        break;
    case Behaviour::EndlessHeaders:
        socket->write("HTTP/1.1 200 OK\r\n");
        writeEvery(socket, 1, "X-Name: value\r\n");
        break;
    case Behaviour::HeaderFlood:
        socket->write("HTTP/1.1 200 OK\r\n");
        flood(socket);
        break;
    case Behaviour::Fail:
        socket->write("HTTP/1.1 500 Out of order\r\nContent-Length: 0\r\n\r\n");
        break;
    case Behaviour::Redirect:
        socket->write("HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:9/\r\n"
                      "Content-Length: 0\r\n\r\n");
        break;
    case Behaviour::Hang:
        break;
    case Behaviour::Status:
        socket->write("HTTP/1.1 " + m_status + "\r\nContent-Length: 0\r\n\r\n");
        break;
    case Behaviour::HangUp:
        socket->abort();
        break;
    }
}

// As fast as the other side reads.
void HttpServer::flood(QTcpSocket* socket)
{
    constexpr int Lines = 4096;
    const QByteArray headers = QByteArray("X-Name: value\r\n").repeated(Lines);
    const auto take = [this, socket, headers](qint64 taken, qint64 waiting) {
        m_flooded += taken;
        if (waiting == 0) {
            socket->write(headers);
        }
    };
#ifndef QT_NO_SSL
    if (auto* const encrypted = qobject_cast<QSslSocket*>(socket)) {
        QObject::connect(
            encrypted, &QSslSocket::encryptedBytesWritten, socket,
            [take, encrypted](qint64 taken) { take(taken, encrypted->encryptedBytesToWrite()); });
        return;
    }
#endif
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket,
                     [take, socket](qint64 taken) { take(taken, socket->bytesToWrite()); });
}

void HttpServer::writeEvery(QTcpSocket* socket, int intervalMs, const QByteArray& text)
{
    auto* timer = new QTimer(socket);
    QObject::connect(timer, &QTimer::timeout, socket, [socket, text] { socket->write(text); });
    timer->start(intervalMs);
}
