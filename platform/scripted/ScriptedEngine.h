// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
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

// A back end without hardware: what the library is told is steered through the objects below, by a
// test or by a scenario, and what it asks is logged. A fresh one has no device, measures nothing
// and knows nothing. Changes reach the listeners from the event loop: a test turns it
// (QTRY_VERIFY, QCoreApplication::processEvents()) before it looks. Pictures need a
// QGuiApplication.
class CLASSROOMSCRIPTED_EXPORT ScriptedEngine final : public Engine
{
public:
    explicit ScriptedEngine(const Scenario& scenario = {});
    ~ScriptedEngine() override;

    // Makes one, installs it in the EngineRegistry, which owns it, and hands it out for steering.
    static ScriptedEngine& install(const Scenario& scenario = {});

    ScriptedCameras& cameras() { return m_cameras; }
    ScriptedMicrophones& microphones() { return m_microphones; }
    ScriptedSpeakers& scriptedSpeakers() { return m_speakers; }
    ScriptedNetwork& network() { return m_network; }
    ScriptedFacts& facts() { return m_facts; }
    ScriptedReports& reports() { return m_reports; }

    QStringList calls() const { return m_log.calls(); }
    QStringList commands() const { return m_log.commands(); } // without the calls that only ask
    void clearCalls() { m_log.clear(); }
    // Cameras, microphones, speakers, players and probes that were created and not destroyed.
    int livingSessions() const { return m_log.livingSessions(); }

    void setSettingsFolder(const QString& folder) { m_settingsFolder = folder; }

    std::unique_ptr<CameraBackend> createCamera(CameraBackend::Listener& listener) override;
    std::unique_ptr<MicrophoneBackend>
    createMicrophone(MicrophoneBackend::Listener& listener) override;
    std::unique_ptr<SpeakerBackend> createSpeaker(SpeakerBackend::Listener& listener) override;
    std::unique_ptr<PlayerBackend> createPlayer(const QString& path, float volume,
                                                PlayerBackend::Listener& listener) override;
    std::unique_ptr<NetworkProbe> createNetworkProbe(NetworkProbe::Listener& listener) override;
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
    QTemporaryDir m_privateFolder; // never the user's own settings, unless the host says so
    QString m_settingsFolder;
    std::unique_ptr<Timeline> m_timeline;
};

} // namespace Platform
