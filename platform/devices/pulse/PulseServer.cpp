// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseServer.h"

#include "platform/backend/DetachedThread.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

namespace Platform {

namespace {

constexpr std::chrono::milliseconds EndTimeout(1000);
constexpr std::chrono::milliseconds EndTimeoutOfUnconnected(50);

} // namespace

// The newest list on its way to the GUI thread. It replaces a list that was not fetched yet, so
// that many changes at once don't fill the event loop.
struct PulseServer::Arrival
{
    std::mutex mutex;
    std::optional<PulseDevices> devices;

    bool put(const PulseDevices& newest) // true if no message to fetch it is on its way
    {
        const std::scoped_lock lock(mutex);
        const bool isFirst = !devices;
        devices = newest;
        return isFirst;
    }

    PulseDevices take()
    {
        const std::scoped_lock lock(mutex);
        return *std::exchange(devices, std::nullopt);
    }
};

PulseServer::PulseServer() : m_arrival(std::make_shared<Arrival>())
{
    m_connection = std::make_unique<PulseConnection>(
        [this, arrival = m_arrival, sender = m_mailbox.sender()](const PulseDevices& devices) {
            if (arrival->put(devices)) {
                sender.post([this, arrival] { takeDevices(arrival->take()); });
            }
        });
}

// libpulse looks up the server's name on a thread, and waits for it at the end.
PulseServer::~PulseServer()
{
    const auto limit = m_devices.isConnected ? EndTimeout : EndTimeoutOfUnconnected;
    DetachedThread::runWithin(limit, [connection = m_connection.release()] { delete connection; });
}

quint64 PulseServer::setVolume(PulseKind kind, const QString& id, int percent)
{
    const quint64 order = ++m_lastOrder;
    m_connection->run([connection = m_connection.get(), kind, id, percent, order] {
        connection->setVolume(kind, id, percent, order);
    });
    return order;
}

QString PulseServer::speakerId() const
{
    if (m_chosenSpeakerId.isEmpty()) {
        return m_devices.speakers.preferredId();
    }
    return m_devices.speakers.find(m_chosenSpeakerId) ? m_chosenSpeakerId : QString();
}

void PulseServer::chooseSpeaker(const QString& id)
{
    m_chosenSpeakerId = id;
    m_failedSpeakerId.clear();
    announce();
}

void PulseServer::setSpeakerFailed(const QString& id, bool hasFailed)
{
    const QString failed = hasFailed && m_devices.speakers.find(id) ? id : QString();
    if (m_failedSpeakerId != failed) {
        m_failedSpeakerId = failed;
        announce();
    }
}

void PulseServer::takeDevices(const PulseDevices& devices)
{
    m_devices = devices;
    if (!m_devices.speakers.find(m_failedSpeakerId)) {
        m_failedSpeakerId.clear();
    }
    Q_EMIT changed();
}

void PulseServer::announce()
{
    m_mailbox.sender().post([this] { Q_EMIT changed(); });
}

} // namespace Platform
