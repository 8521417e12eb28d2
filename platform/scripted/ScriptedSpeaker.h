// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/SpeakerBackend.h"
#include "platform/scripted/LoggedSession.h"

#include <QObject>

namespace Platform {

class ResultDocument;
class ScriptedSpeakers;

// One user of the scripted speakers.
class ScriptedSpeaker final : public QObject, public SpeakerBackend
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedSpeaker)

public:
    ScriptedSpeaker(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                    Listener& listener);
    ~ScriptedSpeaker() override;

    QString currentId() const override;
    QString currentName() const override;
    void setCurrent(const QString& id) override;
    DeviceState state() const override;
    int volume() const override;
    void setVolume(int percent) override;

private:
    void onCurrentChanged(const QString& id);
    void notifyWorkState();

    ScriptedSpeakers& m_speakers;
    ResultDocument& m_document; // the volumes go there
    Listener& m_listener;
    LoggedSession m_session;
    QString m_id;
    int m_volumeBefore = 0; // of that speaker
    bool m_isMovedByUser = false;
};

} // namespace Platform
