// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedLoop.h"

#include "platform/scripted/ScriptedMicrophones.h"
#include "platform/scripted/ScriptedSpeakers.h"

namespace Platform {

namespace {

// In the report's words; empty if there is none.
template <typename Devices>
QString obstacleOf(const Devices& devices, const QString& id)
{
    switch (devices.stateOf(id)) {
    case DeviceState::Ready:
    case DeviceState::Working:
    case DeviceState::Silent:
        break;
    default:
        return toString(devices.stateOf(id));
    }
    if (devices.isMuted(id)) {
        return QStringLiteral("muted");
    }
    return devices.audibleVolumeOf(id) > 0 ? QString() : QStringLiteral("volumeZero");
}

} // namespace

ScriptedLoop::ScriptedLoop(const ScriptedSpeakers& speakers, const QString& speakerId,
                           const ScriptedMicrophones& microphones, const QString& microphoneId,
                           CallLog& log, const LoopOutcome& scripted)
    : m_session(log, QStringLiteral("loop"), speakerId + QStringLiteral(", ") + microphoneId),
      m_outcome(scripted)
{
    m_clock.start();
    const QString ofSpeaker = obstacleOf(speakers, speakerId);
    const QString reason = ofSpeaker.isEmpty() ? obstacleOf(microphones, microphoneId) : ofSpeaker;
    if (!reason.isEmpty()) {
        m_outcome = {LoopOutcome::Result::NotTried, 0, 0, reason};
    }
}

std::optional<LoopOutcome> ScriptedLoop::outcome() const
{
    m_session.query("outcome");
    const bool takesTime = m_outcome.result != LoopOutcome::Result::NotTried;
    return takesTime && m_clock.elapsed() < SweepMs ? std::nullopt
                                                    : std::optional<LoopOutcome>(m_outcome);
}

} // namespace Platform
