// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/StunServer.h"
#include "platform/devices/network/HostLookup.h"
#include "platform/devices/network/ProbeWindow.h"
#include "platform/devices/network/StunClient.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <deque>
#include <functional>
#include <memory>

class QUdpSocket;

namespace Platform {

// Sends the probes and reads the answers, on the thread that it was moved to. A failed lookup, a
// refused or unreachable server and a long silence all lead to another lookup and a new socket, so
// that a changed network is found again.
class ProbeWorker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ProbeWorker)

public:
    // Both are called on the worker's thread.
    struct Reports
    {
        std::function<void(const NetworkFigures&)> figures;
        std::function<void(const QHostAddress&)> clientAddress; // once
    };

    ProbeWorker(const StunServer& server, Reports reports);
    ~ProbeWorker() override;

    void start();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct OpenProbe
    {
        StunId id;
        int number;
        ProbeWindow::Time sentAt;
    };

    ProbeWindow::Time now() const;
    void tick();
    void forgetOverdue();
    void lookUp();
    void takeAddresses(const HostLookup::Answer& answer);
    void openNext();
    void closeWhereUseless();
    void sendProbe();
    bool write(const QByteArray& datagram);
    void readDatagrams();
    void take(const QByteArray& datagram);

    const StunServer m_server;
    const Reports m_reports;
    QElapsedTimer m_clock;
    QBasicTimer m_probeTimer;
    QBasicTimer m_verdictTimer;
    std::unique_ptr<HostLookup> m_lookup; // the last one
    bool m_isLookingUp = false;
    ProbeWindow::Time m_nextLookup{0};
    QList<QHostAddress> m_addresses; // not tried yet
    std::unique_ptr<QUdpSocket> m_socket;
    ProbeWindow::Time m_lastSign{0}; // of life: an answer, or the socket's opening
    bool m_isRefused = false;
    bool m_hasClientAddress = false;
    StunClient m_client;
    ProbeWindow m_window;
    std::deque<OpenProbe> m_open;
};

} // namespace Platform
