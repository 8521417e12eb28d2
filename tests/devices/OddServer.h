// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QUdpSocket>
#include <functional>

class QNetworkDatagram;

namespace Platform {
struct StunServer;
}

// A server on 127.0.0.1 that answers as the test says, on the test's own thread.
class OddServer
{
public:
    using Answer = std::function<void(OddServer& server, const QNetworkDatagram& request)>;

    explicit OddServer(Answer answer);

    Platform::StunServer server() const;
    const QList<QByteArray>& ids() const { return m_ids; } // of the requests so far

    static QByteArray rightAnswer(const QNetworkDatagram& request);
    void send(const QByteArray& datagram, const QNetworkDatagram& request);
    void sendFromElsewhere(const QByteArray& datagram, const QNetworkDatagram& request);

private:
    void readRequests();

    Answer m_answer;
    QUdpSocket m_socket;
    QUdpSocket m_elsewhere;
    QList<QByteArray> m_ids;
};
