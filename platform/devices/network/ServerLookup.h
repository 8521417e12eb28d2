// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/StunServer.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

class QSocketNotifier;
struct ares_channeldata;

namespace Platform {

// Asks DNS which STUN servers a domain has: its SRV records _stun._udp (RFC 8489, section 8). Runs
// on the event loop of its thread, and destroying it ends it at once, whatever the name server
// does. Qt's own lookup would keep the end of the program waiting for a silent name server.
class ServerLookup : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ServerLookup)

public:
    // If no record has come by then, the domain itself is taken for the server.
    static constexpr int DeadlineMs = 1500;

    // Called once, from the event loop: the servers in the order to try them. The domain itself if
    // there is no record; nothing if the domain says that it has no such server.
    using Done = std::function<void(const std::vector<StunServer>& servers)>;

    // nameservers: "ADDRESS:PORT" with commas between them; empty: the system's.
    ServerLookup(const QString& domain, const QString& nameservers, Done done);
    ~ServerLookup() override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void start(const QString& nameservers);
    void watch(qintptr socket, bool isRead, bool isWritten);
    void process(qintptr readSocket, qintptr writtenSocket);
    void take(int status, const unsigned char* answer, int size);
    void finish();

    const QString m_domain;
    Done m_done;
    ares_channeldata* m_channel = nullptr;
    std::map<std::pair<qintptr, bool>, std::unique_ptr<QSocketNotifier>> m_notifiers; // true: write
    QBasicTimer m_timer;
    QElapsedTimer m_clock;
    bool m_isAnswered = false;
    std::vector<StunServer> m_servers;
};

} // namespace Platform
