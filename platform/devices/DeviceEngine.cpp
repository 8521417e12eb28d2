// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/DeviceEngine.h"

#include "platform/backend/Log.h"
#include "platform/backend/NetworkSeries.h"
#include "platform/backend/StunServer.h"
#include "platform/devices/CameraSystem.h"
#include "platform/devices/SoundSystem.h"
#include "platform/devices/facts/DeviceFacts.h"
#include "platform/devices/network/StunProbe.h"
#include "platform/devices/network/StunResponder.h"
#include "platform/devices/reports/ReportOutbox.h"

namespace Platform {

namespace {

constexpr qint64 MaxHeadBytes = qint64(256) * 1024;

OutboxLimits limitsOf(const DeviceEngineConfig& config)
{
    OutboxLimits limits;
    limits.maxHeadBytes = config.isProcessOwn ? MaxHeadBytes : 0;
    return limits;
}

QString reportsFolderOf(const DeviceEngineConfig& config)
{
    return config.reportsFolder.isEmpty() ? config.settingsFolder + QLatin1String("/reports")
                                          : config.reportsFolder;
}

QString shownServer(const DeviceEngineConfig& config)
{
    if (config.server.isEmpty()) {
        return config.builtInResponderText.isEmpty() ? qtTrId("ID_Engine_BuiltInResponder")
                                                     : config.builtInResponderText;
    }
    const std::optional<StunServer> server = StunServer::fromText(config.server);
    return server ? server->toString() : config.server;
}

} // namespace

// A probe with what it needs to live: the responder, where it asks that. Its figures go into the
// results before the listener hears of them.
class DeviceEngine::EngineProbe final : public NetworkProbe, private NetworkProbe::Listener
{
public:
    EngineProbe(std::shared_ptr<StunResponder> responder, const StunServer& server,
                NetworkProbe::Listener& listener, StunProbe::AddressHandler onClientAddress,
                const QString& nameservers, ReportSink* sink)
        : m_responder(std::move(responder)),
          m_listener(listener),
          m_sink(sink),
          m_probe(server, *this, std::move(onClientAddress), nameservers)
    {
    }

    NetworkFigures figures() const override
    {
        NetworkFigures figures = m_probe.figures();
        if (m_responder) {
            figures.problem = NetworkProblem::NoServer;
        }
        return figures;
    }

private:
    void networkFiguresChanged() override
    {
        const NetworkFigures now = figures();
        if (m_sink && now.sent > 0) {
            m_sink->recordMeasurement(QStringLiteral("network"), m_series.add(now));
        }
        m_listener.networkFiguresChanged();
    }

    std::shared_ptr<StunResponder> m_responder;
    NetworkProbe::Listener& m_listener;
    ReportSink* m_sink;
    NetworkSeries m_series;
    StunProbe m_probe;
};

DeviceEngine::DeviceEngine(const DeviceEngineConfig& config)
    : m_config(config),
      m_reports(std::make_unique<ReportOutbox>(config.resultsPath, reportsFolderOf(config),
                                               config.reportUrl, limitsOf(config),
                                               config.reportToken)),
      m_facts(std::make_unique<DeviceFacts>(
          config, shownServer(config),
          [this](NetworkProbe::Listener& listener, DeviceFacts::AddressHandler handler) {
              return probe(listener, std::move(handler), nullptr);
          })),
      m_sound(createSoundSystem(config, *m_reports)),
      m_cameras(createCameraSystem(config, *m_reports))
{
    if (!config.server.isEmpty() && !StunServer::fromText(config.server)) {
        qCWarning(Log::devices).noquote()
            << "The network is not measured: the server" << config.server
            << "is not one. Give it as" << StunServer::Form;
    }
}

DeviceEngine::~DeviceEngine() = default;

void DeviceEngine::prepare(std::function<void()> done)
{
    m_facts->prepare(std::move(done));
}

std::unique_ptr<CameraBackend> DeviceEngine::createCamera(CameraBackend::Listener& listener)
{
    return m_cameras->createCamera(listener);
}

std::unique_ptr<MicrophoneBackend>
DeviceEngine::createMicrophone(MicrophoneBackend::Listener& listener)
{
    return m_sound->createMicrophone(listener);
}

std::unique_ptr<SpeakerBackend> DeviceEngine::createSpeaker(SpeakerBackend::Listener& listener)
{
    return m_sound->createSpeaker(listener);
}

std::unique_ptr<PlayerBackend> DeviceEngine::createPlayer(const QString& path, float volume,
                                                          PlayerBackend::Listener& listener)
{
    return m_sound->createPlayer(path, volume, listener);
}

std::unique_ptr<NetworkProbe> DeviceEngine::createNetworkProbe(NetworkProbe::Listener& listener)
{
    return probe(listener, {}, m_reports.get());
}

std::unique_ptr<AcousticLoop> DeviceEngine::createAcousticLoop(const QString& speakerId,
                                                               const QString& microphoneId)
{
    return m_sound->createAcousticLoop(speakerId, microphoneId);
}

DeviceList DeviceEngine::speakers() const
{
    return m_sound->speakers();
}

SoundServerState DeviceEngine::soundServerState() const
{
    return m_sound->serverState();
}

SystemFacts& DeviceEngine::systemFacts()
{
    return *m_facts;
}

ReportSink& DeviceEngine::reportSink()
{
    return *m_reports;
}

QString DeviceEngine::settingsFolder() const
{
    return m_config.settingsFolder;
}

void DeviceEngine::deliver(std::chrono::milliseconds limit)
{
    m_reports->deliver(limit);
}

void DeviceEngine::postReport(const QByteArray& report, std::chrono::milliseconds limit)
{
    m_reports->postReport(report, limit);
}

DeliveryOutcome DeviceEngine::deliverReports(std::chrono::milliseconds limit)
{
    return m_reports->deliver(limit);
}

QJsonObject DeviceEngine::results() const
{
    return m_reports->results().toJson();
}

std::shared_ptr<StunResponder> DeviceEngine::responder()
{
    std::shared_ptr<StunResponder> present = m_responder.lock();
    if (!present) {
        present = std::make_shared<StunResponder>();
        if (present->server().port == 0) {
            qCWarning(Log::devices).noquote()
                << "The built-in responder doesn't run:" << present->errorString();
        }
        m_responder = present;
    }
    return present;
}

std::unique_ptr<NetworkProbe>
DeviceEngine::probe(NetworkProbe::Listener& listener,
                    std::function<void(const QString&)> onClientAddress, ReportSink* sink)
{
    if (m_config.server.isEmpty()) {
        std::shared_ptr<StunResponder> present = responder();
        const StunServer server = present->server();
        return std::make_unique<EngineProbe>(std::move(present), server, listener,
                                             std::move(onClientAddress), QString(), sink);
    }
    const StunServer server = StunServer::fromText(m_config.server).value_or(StunServer());
    return std::make_unique<EngineProbe>(nullptr, server, listener, std::move(onClientAddress),
                                         m_config.nameservers, sink);
}

} // namespace Platform
