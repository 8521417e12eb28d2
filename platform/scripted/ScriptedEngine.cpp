// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedEngine.h"

#include "platform/backend/EngineRegistry.h"
#include "platform/scripted/ScriptedCamera.h"
#include "platform/scripted/ScriptedLoop.h"
#include "platform/scripted/ScriptedMicrophone.h"
#include "platform/scripted/ScriptedNetworkProbe.h"
#include "platform/scripted/ScriptedPlayer.h"
#include "platform/scripted/ScriptedSpeaker.h"
#include "platform/scripted/Timeline.h"

#include <QFileInfo>

namespace Platform {

ScriptedEngine::ScriptedEngine(const Scenario& scenario)
    : m_facts(m_log), m_reports(m_log), m_settingsFolder(m_privateFolder.path())
{
    for (const Scenario::Action& action : scenario.setup) {
        action(*this);
    }
    m_timeline = std::make_unique<Timeline>(scenario.timeline, *this);
}

ScriptedEngine::~ScriptedEngine() = default;

ScriptedEngine& ScriptedEngine::install(const Scenario& scenario)
{
    auto engine = std::make_unique<ScriptedEngine>(scenario);
    ScriptedEngine& result = *engine;
    EngineRegistry::install(std::move(engine));
    return result;
}

std::unique_ptr<CameraBackend> ScriptedEngine::createCamera(CameraBackend::Listener& listener)
{
    return std::make_unique<ScriptedCamera>(m_cameras, m_log, m_reports.document(), listener);
}

std::unique_ptr<MicrophoneBackend>
ScriptedEngine::createMicrophone(MicrophoneBackend::Listener& listener)
{
    return std::make_unique<ScriptedMicrophone>(m_microphones, m_log, m_reports.document(),
                                                listener);
}

std::unique_ptr<SpeakerBackend> ScriptedEngine::createSpeaker(SpeakerBackend::Listener& listener)
{
    return std::make_unique<ScriptedSpeaker>(m_speakers, m_log, m_reports.document(), listener);
}

std::unique_ptr<PlayerBackend> ScriptedEngine::createPlayer(const QString& path, float /*volume*/,
                                                            PlayerBackend::Listener& listener)
{
    if (m_speakers.playerFails()) {
        m_log.add(QStringLiteral("player.refuse(%1)").arg(QFileInfo(path).fileName()));
        m_reports.document().recordMeasurement(
            QStringLiteral("speaker"),
            {{QStringLiteral("soundPlayed"),
              QJsonObject{{QStringLiteral("failed"), toString(DeviceState::Failed)}}}});
        return nullptr;
    }
    return std::make_unique<ScriptedPlayer>(m_speakers, m_log, m_reports.document(), path,
                                            listener);
}

std::unique_ptr<NetworkProbe> ScriptedEngine::createNetworkProbe(NetworkProbe::Listener& listener)
{
    return std::make_unique<ScriptedNetworkProbe>(m_network, m_log, m_reports.document(), listener);
}

std::unique_ptr<AcousticLoop> ScriptedEngine::createAcousticLoop(const QString& speakerId,
                                                                 const QString& microphoneId)
{
    return std::make_unique<ScriptedLoop>(m_speakers, speakerId, m_microphones, microphoneId, m_log,
                                          m_loop);
}

DeviceList ScriptedEngine::speakers() const
{
    m_log.addQuery(QStringLiteral("engine.speakers()"));
    return m_speakers.devices();
}

} // namespace Platform
