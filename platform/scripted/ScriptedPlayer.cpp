// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedPlayer.h"

#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedSpeakers.h"

#include <QFileInfo>

#include <algorithm>

namespace Platform {

namespace {

// The shipped sounds are encoded at a constant rate.
constexpr qint64 BitsPerMs = 192;
constexpr qint64 BitsPerByte = 8;
constexpr qint64 MaxLengthMs = qint64(60) * 1000;

int lengthOf(const ScriptedSpeakers& speakers, const QFileInfo& file)
{
    const int scripted = speakers.soundLength(file.fileName());
    if (scripted >= 0) {
        return scripted;
    }
    const qint64 length = file.isFile() ? file.size() * BitsPerByte / BitsPerMs : 0;
    return static_cast<int>(std::min(length, MaxLengthMs));
}

} // namespace

ScriptedPlayer::ScriptedPlayer(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                               const QString& path, Listener& listener)
    : m_speakers(speakers),
      m_listener(listener),
      m_session(log, QStringLiteral("player"), QFileInfo(path).fileName())
{
    m_speakers.addPlayedFile(path);
    document.recordMeasurement(QStringLiteral("speaker"), {{QStringLiteral("soundPlayed"),
                                                            QFileInfo(path).completeBaseName()}});
    m_endTimer.setSingleShot(true);
    connect(&m_endTimer, &QTimer::timeout, this, &ScriptedPlayer::finish);
    connect(&m_speakers, &ScriptedSpeakers::playbackEnded, this, &ScriptedPlayer::finish,
            Qt::QueuedConnection);
    connect(&m_speakers, &ScriptedSpeakers::currentStateChanged, this,
            &ScriptedPlayer::endWithoutSpeaker);
    connect(&m_speakers, &ScriptedSpeakers::currentChanged, this,
            &ScriptedPlayer::endWithoutSpeaker);
    m_endTimer.start(lengthOf(m_speakers, QFileInfo(path)));
    endWithoutSpeaker();
}

ScriptedPlayer::~ScriptedPlayer() = default;

void ScriptedPlayer::endWithoutSpeaker()
{
    if (!isUsable(m_speakers.currentState())) {
        m_endTimer.start(0);
    }
}

void ScriptedPlayer::finish()
{
    if (!m_isFinished) {
        m_isFinished = true;
        m_endTimer.stop();
        m_listener.playbackFinished();
    }
}

} // namespace Platform
