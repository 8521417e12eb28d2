// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <memory>

class QTcpSocket;

// A report server on 127.0.0.1 that behaves as it is told.
class HttpServer
{
public:
    static constexpr int LateMs = 300;

    enum class Behaviour {
        Take,
        TakeLate,
        SlowBody,
        EndlessHeaders,
        HeaderFlood,
        Fail,
        Redirect,
        Hang,
        HangUp,
        Status
    };

    HttpServer(); // without encryption
    explicit HttpServer(std::unique_ptr<QTcpServer> listener);
    ~HttpServer();

    void listen(); // always on the same port
    void refuse(); // as a server that isn't there
    QString url(const QString& scheme = QStringLiteral("http")) const;
    void setBehaviour(Behaviour behaviour) { m_behaviour = behaviour; }
    // Answers so, such as "404 Not Found"; behind that may be headers.
    void setStatus(const QByteArray& status);

    struct Request
    {
        QByteArray head;
        QByteArray body;
    };
    const QList<Request>& requests() const { return m_requests; }
    qint64 flooded() const { return m_flooded; } // bytes of headers that were taken

private:
    void takeConnection();
    void read(QTcpSocket* socket);
    void answer(QTcpSocket* socket);
    void flood(QTcpSocket* socket);
    static void writeEvery(QTcpSocket* socket, int intervalMs, const QByteArray& text);

    std::unique_ptr<QTcpServer> m_server;
    quint16 m_port = 0;
    Behaviour m_behaviour = Behaviour::Take;
    QByteArray m_status;
    qint64 m_flooded = 0;
    QHash<QTcpSocket*, QByteArray> m_received;
    QList<Request> m_requests;
};
