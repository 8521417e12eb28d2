// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/ServerLookup.h"

#include "platform/backend/Log.h"
#include "platform/devices/network/NetworkSystem.h"
#include "platform/devices/network/SrvOrder.h"

#include <QRandomGenerator>
#include <QSocketNotifier>
#include <QTimerEvent>
#include <QUrl>

#include <ares.h>

namespace Platform {

namespace {

constexpr int TickMs = 20;
constexpr int TryMs = 700; // and then once more
constexpr int Tries = 2;
// RFC 1035 and RFC 2782; the systems' headers differ.
constexpr int InternetClass = 1;
constexpr int SrvType = 33;
constexpr auto NoSocket = qintptr(ARES_SOCKET_BAD);

quint32 byChance(quint32 most)
{
    return QRandomGenerator::system()->bounded(most + 1);
}

std::vector<SrvRecord> recordsIn(const unsigned char* answer, int size)
{
    ares_srv_reply* list = nullptr;
    if (ares_parse_srv_reply(answer, size, &list) != ARES_SUCCESS) {
        return {};
    }
    std::vector<SrvRecord> records;
    for (const ares_srv_reply* each = list; each != nullptr; each = each->next) {
        records.push_back(
            {QString::fromLatin1(each->host), each->port, each->priority, each->weight});
    }
    ares_free_data(list);
    return records;
}

bool isNoServer(const SrvRecord& record)
{
    return record.target.isEmpty() || record.target == QLatin1String(".") || record.port == 0;
}

} // namespace

ServerLookup::ServerLookup(const QString& domain, const QString& nameservers, Done done)
    : m_domain(domain), m_done(std::move(done))
{
    m_clock.start();
    m_timer.start(TickMs, this);
    start(nameservers);
}

ServerLookup::~ServerLookup()
{
    m_notifiers.clear();
    if (m_channel) {
        ares_destroy(m_channel); // calls back for what is open
    }
}

void ServerLookup::start(const QString& nameservers)
{
    NetworkSystem::begin();
    static const int library = ares_library_init(ARES_LIB_INIT_ALL);
    ares_options options = {};
    options.timeout = TryMs;
    options.tries = Tries;
    options.sock_state_cb_data = this;
    options.sock_state_cb = [](void* self, ares_socket_t socket, int isRead, int isWritten) {
        static_cast<ServerLookup*>(self)->watch(qintptr(socket), isRead != 0, isWritten != 0);
    };
    const int known = ARES_OPT_TIMEOUTMS | ARES_OPT_TRIES | ARES_OPT_SOCK_STATE_CB;
    if (library != ARES_SUCCESS || ares_init_options(&m_channel, &options, known) != ARES_SUCCESS) {
        m_channel = nullptr;
        take(ARES_ENOTINITIALIZED, nullptr, 0);
        return;
    }
    if (!nameservers.isEmpty()) {
        ares_set_servers_ports_csv(m_channel, nameservers.toLatin1().constData());
    }
    const QByteArray question = "_stun._udp." + QUrl::toAce(m_domain);
    ares_query(
        m_channel, question.constData(), InternetClass, SrvType,
        [](void* self, int status, int, unsigned char* answer, int size) {
            static_cast<ServerLookup*>(self)->take(status, answer, size);
        },
        this);
}

void ServerLookup::watch(qintptr socket, bool isRead, bool isWritten)
{
    for (const bool isWriting : {false, true}) {
        std::unique_ptr<QSocketNotifier>& notifier = m_notifiers[{socket, isWriting}];
        const bool isWanted = isWriting ? isWritten : isRead;
        if (notifier && !isWanted) {
            notifier->setEnabled(false);
            notifier.release()->deleteLater(); // it may be calling
        } else if (!notifier && isWanted) {
            notifier = std::make_unique<QSocketNotifier>(socket, isWriting ? QSocketNotifier::Write
                                                                           : QSocketNotifier::Read);
            connect(notifier.get(), &QSocketNotifier::activated, this, [this, socket, isWriting] {
                process(isWriting ? NoSocket : socket, isWriting ? socket : NoSocket);
            });
        }
    }
}

void ServerLookup::timerEvent(QTimerEvent*)
{
    if (!m_isAnswered && m_clock.elapsed() >= DeadlineMs) {
        ares_cancel(m_channel);
    }
    process(NoSocket, NoSocket);
}

void ServerLookup::process(qintptr readSocket, qintptr writtenSocket)
{
    if (!m_isAnswered) {
        ares_process_fd(m_channel, ares_socket_t(readSocket), ares_socket_t(writtenSocket));
    }
    if (m_isAnswered && m_done) {
        finish();
    }
}

// Called from within the resolver, which must not be destroyed by it.
void ServerLookup::take(int status, const unsigned char* answer, int size)
{
    m_isAnswered = true;
    const std::vector<SrvRecord> records =
        status == ARES_SUCCESS ? recordsIn(answer, size) : std::vector<SrvRecord>();
    if (records.empty()) {
        qCDebug(Log::network).noquote()
            << "No record of" << m_domain << "-" << ares_strerror(status);
        m_servers = {{m_domain, StunServer::DefaultPort}};
    }
    for (const SrvRecord& record : SrvOrder::of(records, byChance)) {
        if (!isNoServer(record)) {
            m_servers.push_back({record.target, record.port});
        }
    }
}

void ServerLookup::finish()
{
    m_timer.stop();
    for (const StunServer& server : m_servers) {
        qCDebug(Log::network).noquote() << "A server of" << m_domain << "is" << server.toString();
    }
    const Done done = std::move(m_done);
    m_done = nullptr;
    done(m_servers);
}

} // namespace Platform
