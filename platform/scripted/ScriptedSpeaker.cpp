// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedSpeaker.h"

#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedSpeakers.h"

namespace Platform {

ScriptedSpeaker::ScriptedSpeaker(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                                 Listener& listener)
    : ScriptedSession(QStringLiteral("speaker"), speakers, log, document, listener)
{
    connect(
        &m_devices, &ScriptedSpeakers::listChanged, this,
        [this] { m_listener.speakerListChanged(); }, Qt::QueuedConnection);
    connect(
        &m_devices, &ScriptedSpeakers::currentChanged, this,
        [this](const QString& id) { m_listener.currentSpeakerChanged(id); }, Qt::QueuedConnection);
    connect(
        &m_devices, &ScriptedSpeakers::volumeMovedFromOutside, this,
        [this](int percent) { m_listener.speakerVolumeChanged(percent); }, Qt::QueuedConnection);
    connect(&m_devices, &ScriptedSpeakers::volumeMovedFromOutside, this,
            &ScriptedSpeaker::recordMeasurement);
    connect(&m_devices, &ScriptedSpeakers::currentStateChanged, this,
            &ScriptedSpeaker::notifyWorkState);
    connect(&m_devices, &ScriptedSpeakers::currentChanged, this,
            &ScriptedSpeaker::onCurrentChanged);
    m_id = m_devices.currentId();
    m_found.reset(m_devices.volume(), m_devices.isMuted());
    m_default.take(m_devices.defaultName());
    recordMeasurement();
}

ScriptedSpeaker::~ScriptedSpeaker()
{
    recordMeasurement();
}

int ScriptedSpeaker::volume() const
{
    m_session.query("volume");
    return m_devices.audibleVolumeOf(m_devices.currentId());
}

int ScriptedSpeaker::volumeOf(const QString& id) const
{
    m_session.query("volumeOf");
    return m_devices.audibleVolumeOf(id);
}

void ScriptedSpeaker::setVolume(int percent)
{
    m_session.call("setVolume", QString::number(percent));
    m_found.noteMove();
    m_devices.setVolumeByUser(percent);
    recordMeasurement();
}

// Also called if only the list changed.
void ScriptedSpeaker::onCurrentChanged(const QString& id)
{
    if (m_id != id) {
        m_id = id;
        m_found.reset(m_devices.volume(), m_devices.isMuted());
    }
    m_default.take(m_devices.defaultName());
    recordMeasurement();
}

// At every change, so that a result finds what it was made of.
void ScriptedSpeaker::recordMeasurement() const
{
    QJsonObject figures{{QStringLiteral("state"), toString(m_devices.currentState())}};
    if (!m_id.isEmpty()) {
        figures.insert(QStringLiteral("device"), m_devices.currentName());
        m_found.addTo(figures, m_devices.volume(), m_devices.isMuted());
    }
    m_default.addTo(figures);
    m_document.recordMeasurement(QStringLiteral("speaker"), figures);
}

void ScriptedSpeaker::notifyWorkState()
{
    recordMeasurement();
    QMetaObject::invokeMethod(
        this,
        [this, works = isUsable(m_devices.currentState())] {
            m_listener.speakerWorkStateChanged(works);
        },
        Qt::QueuedConnection);
}

} // namespace Platform
