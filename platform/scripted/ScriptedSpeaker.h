// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DefaultDevice.h"
#include "platform/backend/FoundVolume.h"
#include "platform/backend/SpeakerBackend.h"
#include "platform/scripted/ScriptedSession.h"

namespace Platform {

class ScriptedSpeakers;

// One user of the scripted speakers.
class ScriptedSpeaker final : public ScriptedSession<SpeakerBackend, ScriptedSpeakers>
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedSpeaker)

public:
    ScriptedSpeaker(ScriptedSpeakers& speakers, CallLog& log, ResultDocument& document,
                    Listener& listener);
    ~ScriptedSpeaker() override;

    int volume() const override;
    int volumeOf(const QString& id) const override;
    void setVolume(int percent) override;

private:
    void onCurrentChanged(const QString& id);
    void recordMeasurement() const;
    void notifyWorkState();

    QString m_id;
    FoundVolume m_found; // of the speaker m_id
    DefaultDevice m_default;
};

} // namespace Platform
