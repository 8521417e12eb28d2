// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/AcousticLoop.h"
#include "platform/backend/Engine.h"
#include "platform/scripted/CallLog.h"
#include "platform/scripted/Scenario.h"
#include "platform/scripted/ScriptedCameras.h"
#include "platform/scripted/ScriptedFacts.h"
#include "platform/scripted/ScriptedMicrophones.h"
#include "platform/scripted/ScriptedNetwork.h"
#include "platform/scripted/ScriptedReports.h"
#include "platform/scripted/ScriptedSpeakers.h"

#include <QTemporaryDir>

namespace Platform {

class Timeline;

// A back end without hardware. A test or a scenario controls it through the objects below, and
// every call of the library is logged. A new engine has no device, measures nothing and knows no
// facts. Changes reach the listeners from the event loop, so a test runs it (QTRY_VERIFY,
// QCoreApplication::processEvents()) before it looks. Frames need a QGuiApplication.
class CLASSROOMSCRIPTED_EXPORT ScriptedEngine final : public Engine, public AcousticLoopMaker
{
public:
    explicit ScriptedEngine(const Scenario& scenario = {});
    ~ScriptedEngine() override;

    // Creates an engine and installs it in the EngineRegistry, which owns it.
    static ScriptedEngine& install(const Scenario& scenario = {});

    ScriptedCameras& cameras() { return m_cameras; }
    ScriptedMicrophones& microphones() { return m_microphones; }
    ScriptedSpeakers& scriptedSpeakers() { return m_speakers; }
    ScriptedNetwork& network() { return m_network; }
    ScriptedFacts& facts() { return m_facts; }
    ScriptedReports& reports() { return m_reports; }

    QStringList calls() const { return m_log.calls(); }
    QStringList commands() const { return m_log.commands(); } // without queries
    void clearCalls() { m_log.clear(); }
    // The number of cameras, microphones, speakers, players and probes that exist now.
    int livingSessions() const { return m_log.livingSessions(); }

    // What comes of an acoustic loop on devices that are in order. Until then it isn't tried.
    void setLoop(const LoopOutcome& outcome) { m_loop = outcome; }

    void setSettingsFolder(const QString& folder) { m_settingsFolder = folder; }

    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) override;
    std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) override;
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) override;
    std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                PlayerBackend::Listener& listener) override;
    std::unique_ptr<NetworkProbe> createNetworkProbe(NetworkProbe::Listener& listener) override;
    std::unique_ptr<AcousticLoop> createAcousticLoop(const QString& speakerId,
                                                     const QString& microphoneId) override;
    DeviceList speakers() const override;
    SystemFacts& systemFacts() override { return m_facts; }
    ReportSink& reportSink() override { return m_reports; }
    QString settingsFolder() const override { return m_settingsFolder; }

private:
    mutable CallLog m_log;
    ScriptedCameras m_cameras;
    ScriptedMicrophones m_microphones;
    ScriptedSpeakers m_speakers;
    ScriptedNetwork m_network;
    ScriptedFacts m_facts;
    ScriptedReports m_reports;
    LoopOutcome m_loop{LoopOutcome::Result::NotTried, 0, 0, QStringLiteral("scripted")};
    QTemporaryDir m_privateFolder; // used unless the host names the user's own settings
    QString m_settingsFolder;
    std::unique_ptr<Timeline> m_timeline;
};

} // namespace Platform
