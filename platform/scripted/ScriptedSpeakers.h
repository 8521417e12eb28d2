// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/ScriptedDevices.h"

#include <QMap>
#include <QSet>
#include <QStringList>

namespace Platform {

// The scripted speakers and the sounds that are played on them.
class CLASSROOMSCRIPTED_EXPORT ScriptedSpeakers : public ScriptedDevices
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedSpeakers)

public:
    static constexpr int DefaultVolume = 50;
    static constexpr int MaxVolume = 100;

    ScriptedSpeakers();
    ~ScriptedSpeakers() override;

    void setVolume(const QString& id, int percent); // kept while the speaker is unplugged
    void setMuted(const QString& id, bool isMuted); // by another program
    // Another program moves the volume of the current speaker.
    void moveVolumeFromOutside(int percent);

    // How long the file of that name plays. By default that follows from its size.
    void setSoundLength(const QString& fileName, int ms) { m_soundLengths.insert(fileName, ms); }
    // Whether creating players fails from now on.
    void setPlayerFails(bool fails) { m_playerFails = fails; }
    // Ends the sound that is playing.
    void finishPlayback();
    // Full paths of all sounds that were started.
    QStringList playedFiles() const { return m_playedFiles; }

    int volume() const;                           // of the current speaker
    int audibleVolumeOf(const QString& id) const; // 0 while it is muted
    bool isMuted() const;                         // the current one
    bool isMuted(const QString& id) const;
    void setVolumeByUser(int percent); // also unmutes
    bool playerFails() const { return m_playerFails; }
    int soundLength(const QString& fileName) const; // -1 if none was set
    void addPlayedFile(const QString& path) { m_playedFiles.append(path); }

Q_SIGNALS:
    void volumeMovedFromOutside(int percent);
    void playbackEnded();

private:
    QMap<QString, int> m_volumes;
    QSet<QString> m_muted;
    QMap<QString, int> m_soundLengths;
    QStringList m_playedFiles;
    bool m_playerFails = false;
};

} // namespace Platform
