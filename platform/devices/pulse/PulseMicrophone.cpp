// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseMicrophone.h"

#include "platform/backend/ReportSink.h"
#include "platform/devices/pulse/PulseSession.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Platform {

namespace {

constexpr int MaxVolume = 150;

int percentOf(const PulseDevice& device)
{
    return std::clamp(static_cast<int>(std::lround(device.volumePercent())), 0, MaxVolume);
}

} // namespace

PulseMicrophone::PulseMicrophone(std::shared_ptr<PulseSession> session, Listener& listener,
                                 ReportSink& report)
    : m_session(std::move(session)), m_listener(listener), m_report(report)
{
    QObject::connect(m_session.get(), &PulseSession::changed, &m_context, [this] { update(); });
    update();
}

PulseMicrophone::~PulseMicrophone()
{
    close();
}

QString PulseMicrophone::currentName() const
{
    return nameIn(m_list, m_id);
}

void PulseMicrophone::setCurrent(const QString& id)
{
    m_chosenId = id;
    m_mailbox.sender().post([this] { update(); });
}

DeviceState PulseMicrophone::state() const
{
    if (m_chosenId && m_chosenId->isEmpty()) {
        return DeviceState::Off;
    }
    return device() ? DeviceState::Ready : DeviceState::Absent;
}

void PulseMicrophone::open()
{
}

void PulseMicrophone::close()
{
}

void PulseMicrophone::setListening(bool /*on*/)
{
}

bool PulseMicrophone::isVolumeAdjustable() const
{
    return m_isAdjustable;
}

void PulseMicrophone::setVolume(int percent)
{
    if (device()) {
        const int wanted = std::clamp(percent, 0, MaxVolume);
        m_volume.set(wanted, m_session->setVolume(PulseKind::Microphone, m_id, wanted));
        m_mailbox.sender().post([this] { m_listener.microphoneVolumeChanged(volume()); });
    }
}

const PulseDevice* PulseMicrophone::device() const
{
    return m_session->devices().microphones.find(m_id);
}

// As for the speakers, the letters tell what is already so.
void PulseMicrophone::update()
{
    const PulseSide& microphones = m_session->devices().microphones;
    const Mailbox::Sender sender = m_mailbox.sender();
    const DeviceList list = microphones.list();
    const QString id = m_chosenId.value_or(microphones.preferredId());
    const bool isListChanged = !(m_list == list);
    const bool isOther = m_id != id;
    m_list = list;
    m_id = id;
    if (isListChanged) {
        sender.post([this] { m_listener.microphoneListChanged(); });
    }
    // A new list says nothing of the choice, which has to be shown in it again.
    if (isOther || isListChanged) {
        sender.post([this] { m_listener.currentMicrophoneChanged(m_id); });
    }

    const PulseDevice* current = device();
    const bool isArrival = current && (isOther || !m_isPresent);
    m_isPresent = current != nullptr;
    if (!current) {
        return;
    }
    if (isArrival) {
        m_volume.reset(percentOf(*current));
    } else if (m_volume.take(percentOf(*current), microphones.settledOrder)) {
        const auto percent = static_cast<float>(current->volumePercent());
        sender.post([this, percent] { m_listener.systemVolumeChanged(percent); });
    }
    const bool isInfoChanged = m_name != current->name || m_isMuted != current->isMuted ||
                               m_isAdjustable != current->isAdjustable;
    m_name = current->name;
    m_isMuted = current->isMuted;
    m_isAdjustable = current->isAdjustable;
    if (isArrival || isInfoChanged) {
        sender.post([this] { m_listener.microphoneInfoChanged(); });
    }
}

} // namespace Platform
