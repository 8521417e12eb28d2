// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/network/AnswerBudget.h"
#include "platform/devices/network/StunAnswerer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QUdpSocket>

namespace Platform {

// The responder's socket. Bound on its creator's thread, then moved to its own.
class ResponderWorker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ResponderWorker)

public:
    ResponderWorker();

    bool bind(const QHostAddress& address, quint16 port);
    quint16 port() const { return m_socket.localPort(); }
    QString errorString() const { return m_socket.errorString(); }

private:
    void readDatagrams();

    QElapsedTimer m_clock;
    AnswerBudget m_budget;
    StunAnswerer m_answerer;
    QUdpSocket m_socket;
};

} // namespace Platform
