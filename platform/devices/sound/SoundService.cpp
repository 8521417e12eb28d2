// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundService.h"

#include "platform/devices/sound/SoundCapture.h"

#include <mutex>
#include <utility>

namespace Platform {

// The newest list on its way to the GUI thread. It replaces a list that was not fetched yet, so
// that many changes at once don't fill the event loop.
struct SoundService::Arrival
{
    std::mutex mutex;
    std::optional<SoundDevices> devices;

    bool put(const SoundDevices& newest) // true if no message to fetch it is on its way
    {
        const std::scoped_lock lock(mutex);
        const bool isFirst = !devices;
        devices = newest;
        return isFirst;
    }

    SoundDevices take()
    {
        const std::scoped_lock lock(mutex);
        return *std::exchange(devices, std::nullopt);
    }
};

SoundService::SoundService() : m_arrival(std::make_shared<Arrival>())
{
}

SoundService::~SoundService() = default;

SoundService::Publish SoundService::publisher()
{
    return [this, arrival = m_arrival, sender = m_mailbox.sender()](const SoundDevices& devices) {
        if (arrival->put(devices)) {
            sender.post([this, arrival] { takeDevices(arrival->take()); });
        }
    };
}

quint64 SoundService::setVolume(SoundKind kind, const QString& id, int percent)
{
    const quint64 order = ++m_lastOrder;
    sendVolume(kind, id, percent, order);
    return order;
}

QString SoundService::speakerId() const
{
    if (m_chosenSpeakerId.isEmpty()) {
        return m_devices.speakers.preferredId();
    }
    return m_devices.speakers.find(m_chosenSpeakerId) ? m_chosenSpeakerId : QString();
}

void SoundService::chooseSpeaker(const QString& id)
{
    m_chosenSpeakerId = id;
    m_failedSpeakerId.clear();
    announce();
}

std::optional<DeviceState> SoundService::speakerFailure() const
{
    const bool hasFailed = !m_failedSpeakerId.isEmpty() && m_failedSpeakerId == speakerId();
    return hasFailed ? std::optional(m_speakerFailure) : std::nullopt;
}

void SoundService::setSpeakerFailure(const QString& id, std::optional<DeviceState> failure)
{
    const QString failed = failure && m_devices.speakers.find(id) ? id : QString();
    const DeviceState reason = failure.value_or(DeviceState::Failed);
    if (m_failedSpeakerId != failed || m_speakerFailure != reason) {
        m_failedSpeakerId = failed;
        m_speakerFailure = reason;
        announce();
    }
}

void SoundService::takeDevices(const SoundDevices& devices)
{
    m_devices = devices;
    if (!m_devices.speakers.find(m_failedSpeakerId)) {
        m_failedSpeakerId.clear();
    }
    Q_EMIT changed();
}

void SoundService::announce()
{
    m_mailbox.sender().post([this] { Q_EMIT changed(); });
}

} // namespace Platform
