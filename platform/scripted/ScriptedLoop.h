// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/AcousticLoop.h"
#include "platform/scripted/LoggedSession.h"

#include <QElapsedTimer>

namespace Platform {

class ScriptedMicrophones;
class ScriptedSpeakers;

// A scripted sweep. It takes as long as a real one, unless a device prevents it.
class ScriptedLoop final : public AcousticLoop
{
public:
    static constexpr int SweepMs = 1000;

    // scripted: what comes of it if both devices are in order.
    ScriptedLoop(const ScriptedSpeakers& speakers, const QString& speakerId,
                 const ScriptedMicrophones& microphones, const QString& microphoneId, CallLog& log,
                 const LoopOutcome& scripted);

    std::optional<LoopOutcome> outcome() const override;

private:
    LoggedSession m_session;
    LoopOutcome m_outcome;
    QElapsedTimer m_clock;
};

} // namespace Platform
