// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomDevices/ClassroomDevicesExport.h"
#include "platform/backend/AcousticLoop.h"
#include "platform/backend/Engine.h"
#include "platform/devices/DeliveryOutcome.h"
#include "platform/devices/DeviceEngineConfig.h"

#include <functional>

namespace Platform {

class CameraSystem;
class DeviceFacts;
class ReportOutbox;
class SoundSystem;
class StunResponder;

// The engine of this machine: its devices, its network, its user.
class CLASSROOMDEVICES_EXPORT DeviceEngine final : public Engine, public AcousticLoopMaker
{
public:
    explicit DeviceEngine(const DeviceEngineConfig& config);
    ~DeviceEngine() override;

    // Gathers the facts that take time: the cache volume's free space, the user and the client's
    // address. Returns at once; calls done from the event loop, at the latest after a second. done
    // must not destroy the engine, and isn't called once the engine is gone.
    void prepare(std::function<void()> done);

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
    SoundServerState soundServerState() const override;
    SystemFacts& systemFacts() override;
    ReportSink& reportSink() override;
    QString settingsFolder() const override;
    bool hasOwnChoices() const override { return true; }
    void deliver(std::chrono::milliseconds limit) override;

    // Posts a whole report to the address of the reports, if there is one. For the end of the
    // program: waits for the disk, at most for the limit, so that the report is kept whatever
    // happens to its post.
    void postReport(const QByteArray& report, std::chrono::milliseconds limit);
    // As deliver(), and says what came of it.
    DeliveryOutcome deliverReports(std::chrono::milliseconds limit);

    QJsonObject results() const; // of the run so far, see ResultDocument

private:
    class EngineProbe;

    std::shared_ptr<StunResponder> responder();
    std::unique_ptr<NetworkProbe> probe(NetworkProbe::Listener& listener,
                                        std::function<void(const QString&)> onClientAddress,
                                        ReportSink* sink);

    const DeviceEngineConfig m_config;
    std::unique_ptr<ReportOutbox> m_reports;
    std::weak_ptr<StunResponder> m_responder; // lives as long as somebody probes it
    std::unique_ptr<DeviceFacts> m_facts;
    std::unique_ptr<SoundSystem> m_sound;
    std::unique_ptr<CameraSystem> m_cameras;
};

} // namespace Platform
