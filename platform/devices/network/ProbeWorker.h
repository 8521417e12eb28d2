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

namespace Platform {

class ProbeSocket;
class ServerLookup;

// Sends the probes and reads the answers, on the thread that it was moved to. A failed lookup, a
// refused or unreachable server and a long silence all lead to the next server that the domain
// names, then to another lookup, and a new socket, so that a changed network is found again.
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

    // nameservers: as of ServerLookup.
    ProbeWorker(const StunServer& server, const QString& nameservers, Reports reports);
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
    void lookUpServers();
    void takeServers(const std::vector<StunServer>& servers);
    void lookUpAddresses();
    void takeAddresses(const QString& host, const HostLookup::Answer& answer);
    void openNext();
    void closeWhereUseless();
    void sendProbe();
    bool write(const QByteArray& datagram);
    void setRefused();
    void readDatagrams();
    void take(const QByteArray& datagram);

    const StunServer m_server;
    const Reports m_reports;
    QElapsedTimer m_clock;
    QBasicTimer m_probeTimer;
    QBasicTimer m_verdictTimer;
    const QString m_nameservers;
    std::unique_ptr<ServerLookup> m_serverLookup; // the one under way
    std::unique_ptr<HostLookup> m_lookup;         // the last one
    bool m_isLookingUp = false;
    ProbeWindow::Time m_nextLookup{0};
    std::deque<StunServer> m_servers; // not tried yet
    QList<QHostAddress> m_addresses;  // of the last one taken from them, not tried yet
    quint16 m_port = 0;               // of that one
    NetworkProblem m_problem = NetworkProblem::None;
    NetworkProblem m_wayProblem = NetworkProblem::None; // until the next answer
    std::unique_ptr<ProbeSocket> m_socket;
    ProbeWindow::Time m_lastSign{0}; // of life: an answer, or the socket's opening
    bool m_isRefused = false;
    bool m_hasClientAddress = false;
    StunClient m_client;
    ProbeWindow m_window;
    std::deque<OpenProbe> m_open;
};

} // namespace Platform
