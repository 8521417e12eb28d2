// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundSpeaker.h"

#include "platform/backend/ReportSink.h"
#include "platform/devices/sound/SoundService.h"

#include <QJsonObject>
#include <utility>

namespace Platform {

SoundSpeaker::SoundSpeaker(std::shared_ptr<SoundService> server, Listener& listener,
                           ReportSink& report)
    : m_server(std::move(server)),
      m_listener(listener),
      m_report(report),
      m_volume(m_server->maximumVolume(SoundKind::Speaker))
{
    QObject::connect(m_server.get(), &SoundService::changed, &m_context, [this] { update(); });
    update();
}

SoundSpeaker::~SoundSpeaker()
{
    recordMeasurement();
}

QString SoundSpeaker::currentName() const
{
    return nameIn(m_list, m_id);
}

void SoundSpeaker::setCurrent(const QString& id)
{
    m_server->chooseSpeaker(id);
}

DeviceState SoundSpeaker::state() const
{
    if (!device()) {
        return DeviceState::Absent;
    }
    return m_server->speakerFailure().value_or(DeviceState::Ready);
}

DeviceState SoundSpeaker::stateOf(const QString& id) const
{
    return id == m_id ? state() : m_server->devices().speakers.stateOf(id);
}

int SoundSpeaker::volumeOf(const QString& id) const
{
    return m_volume.percentOf(m_server->devices().speakers.volumeOf(id));
}

void SoundSpeaker::setVolume(int percent)
{
    if (device()) {
        m_volume.await(m_server->setVolume(SoundKind::Speaker, m_id, m_volume.set(percent)));
        recordMeasurement();
    }
}

const SoundDevice* SoundSpeaker::device() const
{
    return m_server->devices().speakers.find(m_id);
}

// The state changes before the listener is called: it may ask anything and gets the new values.
void SoundSpeaker::update()
{
    const SoundSide& speakers = m_server->devices().speakers;
    const DeviceList list = speakers.list();
    m_default.take(speakers.defaultName());
    const QString id = m_server->speakerId();
    const bool isOther = m_id != id;
    if (isOther) {
        if (!m_id.isEmpty()) {
            recordMeasurement();
        }
        m_id = id;
    }
    const Mailbox::Sender sender = m_mailbox.sender();
    const SoundServerState serverState = m_server->devices().server;
    const bool isListChanged = !(m_list == list) || m_serverState != serverState;
    if (isListChanged) {
        m_list = list;
        m_serverState = serverState;
        sender.post([this] { m_listener.speakerListChanged(); });
    }

    const SoundDevice* current = device();
    if (isOther) {
        m_volume.reset(current ? current->volume : VolumeState());
    } else if (current && m_volume.take(current->volume, speakers.settledOrder)) {
        sender.post([this] { m_listener.speakerVolumeChanged(volume()); });
    }
    // Whoever refills a list of devices has to select the current device in it again.
    if (isOther || isListChanged) {
        sender.post([this] { m_listener.currentSpeakerChanged(m_id); });
    }
    const bool works = isUsable(state());
    if (m_works != works) {
        m_works = works;
        sender.post([this] { m_listener.speakerWorkStateChanged(m_works); });
    }
    recordMeasurement();
}

// At every change, so that a result finds what it was made of.
void SoundSpeaker::recordMeasurement() const
{
    QJsonObject figures;
    if (!m_id.isEmpty()) {
        m_volume.addTo(figures);
        figures.insert(QStringLiteral("device"), currentName());
    }
    m_default.addTo(figures);
    figures.insert(QStringLiteral("state"), toString(m_serverState, state()));
    m_report.recordMeasurement(QStringLiteral("speaker"), figures);
}

} // namespace Platform
