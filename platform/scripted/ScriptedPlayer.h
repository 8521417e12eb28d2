// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/PlayerBackend.h"
#include "platform/scripted/LoggedSession.h"

#include <QObject>
#include <QTimer>

namespace Platform {

class ResultDocument;
class ScriptedSpeakers;

// A sound that takes the time of the real one and is silent. It ends early if its speaker
// disappears, and at once if the file doesn't exist.
class ScriptedPlayer final : public QObject, public PlayerBackend
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedPlayer)

public:
    ScriptedPlayer(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                   const QString& path, Listener& listener);
    ~ScriptedPlayer() override;

private:
    void endWithoutSpeaker();
    void finish();

    ScriptedSpeakers& m_speakers;
    Listener& m_listener;
    LoggedSession m_session;
    QTimer m_endTimer;
    bool m_isFinished = false;
};

} // namespace Platform
