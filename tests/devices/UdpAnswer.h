// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/ServerProcess.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QUdpSocket>

namespace TestSupport {

// Sends the request again and again until a server that was just started answers. False if it ends,
// or says nothing for ten seconds.
inline bool waitForUdpAnswer(const ServerProcess& server, const QHostAddress& address, quint16 port,
                             const QByteArray& request)
{
    constexpr int StartTimeoutMs = 10000;
    constexpr int AnswerTimeoutMs = 50;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < StartTimeoutMs && server.isRunning()) {
        QUdpSocket socket;
        socket.bind(address, 0);
        socket.writeDatagram(request, address, port);
        if (socket.waitForReadyRead(AnswerTimeoutMs)) {
            return true;
        }
    }
    return false;
}

// A port that nobody uses; 0 if there is none.
inline quint16 freeUdpPort(const QHostAddress& address)
{
    QUdpSocket socket;
    return socket.bind(address, 0) ? socket.localPort() : quint16(0);
}

} // namespace TestSupport
