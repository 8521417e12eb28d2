// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QRandomGenerator>
#include <QThread>
#include <atomic>

class QTcpSocket;
class QUdpSocket;

// A server on 127.0.0.1, on a thread of its own, that answers with what no server should.
class HostilePeer
{
public:
    enum class Kind { Stun, Dns, Http, Tls };

    HostilePeer(Kind kind, quint32 seed);
    ~HostilePeer();
    HostilePeer(const HostilePeer&) = delete;
    HostilePeer& operator=(const HostilePeer&) = delete;

    quint16 port() const { return m_port; }
    int answers() const { return m_answers; } // so far

private:
    void answerDatagrams(QUdpSocket* socket);
    void answerConnection(QTcpSocket* socket);
    QByteArray badStun(const QByteArray& request);
    QByteArray badDns(const QByteArray& request);
    QByteArray badHttp();
    QByteArray badTls();
    QByteArray noise(int length);
    void spoil(QByteArray& message);

    Kind m_kind;
    QRandomGenerator m_random; // of the thread
    QThread m_thread;
    std::atomic<quint16> m_port{0};
    std::atomic<int> m_answers{0};
};
