// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedSpeakers.h"

#include <algorithm>

namespace Platform {

ScriptedSpeakers::ScriptedSpeakers() = default;

ScriptedSpeakers::~ScriptedSpeakers() = default;

void ScriptedSpeakers::setVolume(const QString& id, int percent)
{
    m_volumes.insert(id, std::clamp(percent, 0, MaxVolume));
}

void ScriptedSpeakers::setMuted(const QString& id, bool isMuted)
{
    if (isMuted) {
        m_muted.insert(id);
    } else {
        m_muted.remove(id);
    }
    if (id == currentId()) {
        Q_EMIT volumeMovedFromOutside(audibleVolumeOf(id));
    }
}

void ScriptedSpeakers::moveVolumeFromOutside(int percent)
{
    setVolume(currentId(), percent);
    Q_EMIT volumeMovedFromOutside(audibleVolumeOf(currentId()));
}

void ScriptedSpeakers::finishPlayback()
{
    Q_EMIT playbackEnded();
}

int ScriptedSpeakers::volume() const
{
    return m_volumes.value(currentId(), DefaultVolume);
}

int ScriptedSpeakers::audibleVolumeOf(const QString& id) const
{
    return m_muted.contains(id) ? 0 : m_volumes.value(id, DefaultVolume);
}

bool ScriptedSpeakers::isMuted() const
{
    return isMuted(currentId());
}

bool ScriptedSpeakers::isMuted(const QString& id) const
{
    return m_muted.contains(id);
}

void ScriptedSpeakers::setVolumeByUser(int percent)
{
    setVolume(currentId(), percent);
    m_muted.remove(currentId());
}

int ScriptedSpeakers::soundLength(const QString& fileName) const
{
    return m_soundLengths.value(fileName, -1);
}

} // namespace Platform
