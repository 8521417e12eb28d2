// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedSpeaker.h"

#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedSpeakers.h"

namespace Platform {

ScriptedSpeaker::ScriptedSpeaker(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                                 Listener& listener)
    : m_speakers(speakers),
      m_document(document),
      m_listener(listener),
      m_session(log, QStringLiteral("speaker"))
{
    connect(
        &m_speakers, &ScriptedSpeakers::listChanged, this,
        [this] { m_listener.speakerListChanged(); }, Qt::QueuedConnection);
    connect(
        &m_speakers, &ScriptedSpeakers::currentChanged, this,
        [this](const QString& id) { m_listener.currentSpeakerChanged(id); }, Qt::QueuedConnection);
    connect(
        &m_speakers, &ScriptedSpeakers::volumeMovedFromOutside, this,
        [this](int percent) { m_listener.speakerVolumeChanged(percent); }, Qt::QueuedConnection);
    connect(&m_speakers, &ScriptedSpeakers::currentStateChanged, this,
            &ScriptedSpeaker::notifyWorkState);
    connect(&m_speakers, &ScriptedSpeakers::currentChanged, this,
            &ScriptedSpeaker::onCurrentChanged);
    m_id = m_speakers.currentId();
    m_volumeBefore = m_speakers.volume();
}

ScriptedSpeaker::~ScriptedSpeaker()
{
    if (m_speakers.currentId().isEmpty()) {
        return;
    }
    m_document.recordMeasurement(QStringLiteral("speaker"),
                                 {{QStringLiteral("device"), m_speakers.currentName()},
                                  {QStringLiteral("state"), toString(m_speakers.currentState())},
                                  {QStringLiteral("volumeBefore"), m_volumeBefore},
                                  {QStringLiteral("volumeAfter"), m_speakers.volume()},
                                  {QStringLiteral("movedByUser"), m_isMovedByUser}});
}

QString ScriptedSpeaker::currentId() const
{
    m_session.query("currentId");
    return m_speakers.currentId();
}

QString ScriptedSpeaker::currentName() const
{
    m_session.query("currentName");
    return m_speakers.currentName();
}

void ScriptedSpeaker::setCurrent(const QString& id)
{
    m_session.call("setCurrent", id);
    m_speakers.choose(id);
}

DeviceState ScriptedSpeaker::state() const
{
    m_session.query("state");
    return m_speakers.currentState();
}

int ScriptedSpeaker::volume() const
{
    m_session.query("volume");
    return m_speakers.volume();
}

void ScriptedSpeaker::setVolume(int percent)
{
    m_session.call("setVolume", QString::number(percent));
    m_isMovedByUser = true;
    m_speakers.setVolumeByUser(percent);
}

// Told also where only the list changed.
void ScriptedSpeaker::onCurrentChanged(const QString& id)
{
    if (m_id != id) {
        m_id = id;
        m_volumeBefore = m_speakers.volume();
        m_isMovedByUser = false;
    }
}

void ScriptedSpeaker::notifyWorkState()
{
    QMetaObject::invokeMethod(
        this,
        [this, works = isUsable(m_speakers.currentState())] {
            m_listener.speakerWorkStateChanged(works);
        },
        Qt::QueuedConnection);
}

} // namespace Platform
