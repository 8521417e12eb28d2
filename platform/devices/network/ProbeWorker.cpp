// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ProbeWorker.h"

#include "platform/backend/Log.h"
#include "platform/devices/network/Datagrams.h"
#include "platform/devices/network/ProbeSocket.h"
#include "platform/devices/network/ServerLookup.h"

#include <QTimerEvent>
#include <algorithm>

namespace Platform {

namespace {

constexpr int ProbeIntervalMs = 100;
constexpr int FirstVerdictMs = 900; // within a second, with room for a late timer
constexpr int VerdictIntervalMs = 1000;
constexpr ProbeWindow::Time LookupInterval = std::chrono::seconds(1);
// So long without an answer, and the address is looked up anew.
constexpr ProbeWindow::Time SilenceLimit = ProbeWindow::Deadline + std::chrono::seconds(1);

} // namespace

ProbeWorker::ProbeWorker(const StunServer& server, const QString& nameservers, Reports reports)
    : m_server(server), m_reports(std::move(reports)), m_nameservers(nameservers)
{
}

ProbeWorker::~ProbeWorker() = default;

void ProbeWorker::start()
{
    m_client.prepare(); // the first probe would take longer otherwise
    m_clock.start();
    m_probeTimer.start(ProbeIntervalMs, Qt::PreciseTimer, this);
    m_verdictTimer.start(FirstVerdictMs, Qt::PreciseTimer, this);
    tick();
}

void ProbeWorker::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_probeTimer.timerId()) {
        tick();
    } else if (event->timerId() == m_verdictTimer.timerId()) {
        m_verdictTimer.start(VerdictIntervalMs, Qt::PreciseTimer, this);
        NetworkFigures figures = m_window.figures(now());
        const bool isAnswered = figures.delayMs >= 0;
        figures.problem =
            m_problem == NetworkProblem::None && !isAnswered ? m_wayProblem : m_problem;
        m_reports.figures(figures);
    }
}

ProbeWindow::Time ProbeWorker::now() const
{
    return std::chrono::duration_cast<ProbeWindow::Time>(
        std::chrono::nanoseconds(m_clock.nsecsElapsed()));
}

void ProbeWorker::tick()
{
    forgetOverdue();
    closeWhereUseless();
    if (!m_socket) {
        openNext();
    }
    // While the first lookup takes its time there is nobody to ask; after that, a probe that can't
    // be sent is a lost one.
    if (m_socket || now() > ProbeWindow::Deadline) {
        sendProbe();
    }
}

void ProbeWorker::forgetOverdue()
{
    while (!m_open.empty() && now() - m_open.front().sentAt > ProbeWindow::Deadline) {
        m_client.forget(m_open.front().id);
        m_open.pop_front();
    }
}

// A refusal alone is a lost probe: the server may be starting. It leads on to the name's next
// address or server, if there is one.
void ProbeWorker::closeWhereUseless()
{
    const bool hasNext = !m_addresses.isEmpty() || !m_servers.empty();
    const bool isRefused = m_socket && m_isRefused && hasNext;
    if (isRefused || now() - m_lastSign > SilenceLimit) {
        m_socket.reset();
    }
}

void ProbeWorker::openNext()
{
    if (m_addresses.isEmpty()) {
        lookUp();
    }
    if (m_addresses.isEmpty()) {
        return;
    }
    const QHostAddress address = m_addresses.takeFirst();
    m_socket = std::make_unique<ProbeSocket>(address, m_port);
    connect(m_socket.get(), &ProbeSocket::readyRead, this, &ProbeWorker::readDatagrams);
    m_lastSign = now();
    m_isRefused = false;
    if (!m_socket->isOpen()) {
        m_wayProblem = NetworkProblem::NoRoute;
        qCDebug(Log::network).noquote()
            << "No way to" << address.toString() << "-" << m_socket->errorString();
        m_socket.reset();
    }
}

void ProbeWorker::lookUp()
{
    if (m_serverLookup || m_isLookingUp || now() < m_nextLookup) {
        return;
    }
    m_nextLookup = now() + LookupInterval;
    if (!m_servers.empty()) {
        lookUpAddresses();
    } else if (m_server.mayHaveRecords()) {
        lookUpServers();
    } else {
        m_servers = {m_server};
        lookUpAddresses();
    }
}

void ProbeWorker::lookUpServers()
{
    m_serverLookup = std::make_unique<ServerLookup>(
        m_server.host, m_nameservers,
        [this](const std::vector<StunServer>& servers) { takeServers(servers); });
}

void ProbeWorker::takeServers(const std::vector<StunServer>& servers)
{
    m_serverLookup.release()->deleteLater(); // it is calling
    m_servers.assign(servers.begin(), servers.end());
    if (m_servers.empty()) {
        m_problem = NetworkProblem::NoSuchHost;
        return;
    }
    lookUpAddresses();
    if (!m_socket && !m_addresses.isEmpty()) {
        tick();
    }
}

void ProbeWorker::lookUpAddresses()
{
    const StunServer server = m_servers.front();
    m_servers.pop_front();
    m_port = server.port;
    const QHostAddress literal(server.host);
    if (!literal.isNull()) {
        m_addresses = {literal};
        return;
    }
    m_isLookingUp = true;
    m_lookup =
        std::make_unique<HostLookup>(server.host, [this, server](const HostLookup::Answer& answer) {
            takeAddresses(server.host, answer);
        });
}

void ProbeWorker::takeAddresses(const QString& host, const HostLookup::Answer& answer)
{
    m_isLookingUp = false;
    m_addresses = answer.addresses;
    m_problem = answer.isUnknownName ? NetworkProblem::NoSuchHost : NetworkProblem::None;
    if (m_addresses.isEmpty()) {
        qCDebug(Log::network).noquote() << "No address of" << host << "-" << answer.error;
    } else if (!m_socket) {
        tick();
    }
}

void ProbeWorker::sendProbe()
{
    const ProbeWindow::Time sentAt = now();
    const int number = m_window.addProbe(sentAt);
    const std::optional<StunClient::Request> request =
        m_socket ? m_client.createRequest() : std::nullopt;
    if (!request) {
        return;
    }
    m_open.push_back({request->id, number, sentAt});
    if (!write(request->datagram)) {
        m_socket.reset(); // the next tick tries the next address
    }
}

// False if the socket is of no use any more.
bool ProbeWorker::write(const QByteArray& datagram)
{
    using Outcome = ProbeSocket::Outcome;
    switch (m_socket->send(datagram)) {
    case Outcome::Done:
    case Outcome::Later:
        return true;
    case Outcome::Refused:
        setRefused();
        return true;
    case Outcome::NoRoute:
        m_wayProblem = NetworkProblem::NoRoute;
        return false;
    case Outcome::Broken:
        break;
    }
    return false;
}

void ProbeWorker::setRefused()
{
    m_isRefused = true;
    m_wayProblem = NetworkProblem::Refused;
}

void ProbeWorker::readDatagrams()
{
    for (int count = 0; count < MaxDatagramsAtOnce; ++count) {
        QByteArray datagram;
        const ProbeSocket::Outcome outcome = m_socket->receive(datagram);
        if (outcome == ProbeSocket::Outcome::Refused) {
            setRefused();
        }
        if (outcome != ProbeSocket::Outcome::Done) {
            return;
        }
        take(datagram);
    }
}

void ProbeWorker::take(const QByteArray& datagram)
{
    const ProbeWindow::Time arrivedAt = now();
    const std::optional<StunClient::Answer> answer = m_client.readAnswer(datagram);
    if (!answer) {
        return;
    }
    const auto probe = std::find_if(m_open.begin(), m_open.end(), [&answer](const OpenProbe& each) {
        return each.id == answer->id;
    });
    if (probe == m_open.end()) {
        return;
    }
    m_lastSign = arrivedAt;
    m_wayProblem = NetworkProblem::None;
    m_window.addAnswer(probe->number, arrivedAt);
    m_open.erase(probe);
    if (!m_hasClientAddress && !answer->clientAddress.isNull()) {
        m_hasClientAddress = true;
        m_reports.clientAddress(answer->clientAddress);
    }
}

} // namespace Platform
