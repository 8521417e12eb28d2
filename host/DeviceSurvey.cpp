// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "platform/backend/Engine.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QMap>
#include <QTimer>
#include <functional>
#include <utility>

namespace {

// Servers answer in the background: the lists are complete if nothing changes for QuietMs.
constexpr int FirstAnswerMs = 1000;
constexpr int QuietMs = 150;
constexpr int LongestMs = 3000;

// Listens to one session of each kind, and runs the event loop until nothing changes.
class Watch final : public Platform::CameraBackend::Listener,
                    public Platform::MicrophoneBackend::Listener,
                    public Platform::SpeakerBackend::Listener
{
public:
    Watch()
    {
        m_quiet.setSingleShot(true);
        QObject::connect(&m_quiet, &QTimer::timeout, &m_quiet, [this] {
            if (m_areServersKnown() || m_clock.elapsed() >= FirstAnswerMs) {
                m_loop.quit();
            } else {
                m_quiet.start(QuietMs);
            }
        });
    }

    virtual ~Watch() = default;

    // One server may answer later than the other one.
    void waitForLists(std::function<bool()> areServersKnown)
    {
        m_areServersKnown = std::move(areServersKnown);
        m_clock.start();
        QTimer::singleShot(LongestMs, &m_loop, &QEventLoop::quit);
        m_quiet.start(FirstAnswerMs);
        m_loop.exec();
    }

    void cameraListChanged() override { stir(); }
    void currentCameraChanged(const QString&) override { stir(); }
    void cameraWorkStateChanged(const QString&, bool) override { stir(); }
    void cameraCauseChanged() override {}
    void frameArrived() override {}
    void microphoneListChanged() override { stir(); }
    void currentMicrophoneChanged(const QString&) override { stir(); }
    void levelMeasured(double) override {}
    void microphoneVolumeChanged(int) override { stir(); }
    void microphoneInfoChanged() override { stir(); }
    void microphoneWorkStateChanged(const QString&, bool) override { stir(); }
    void systemVolumeChanged(float) override { stir(); }
    void speakerListChanged() override { stir(); }
    void currentSpeakerChanged(const QString&) override { stir(); }
    void speakerVolumeChanged(int) override { stir(); }
    void speakerWorkStateChanged(bool) override { stir(); }

private:
    void stir()
    {
        if (m_quiet.isActive()) {
            m_quiet.start(QuietMs);
        }
    }

    QEventLoop m_loop;
    QTimer m_quiet;
    QElapsedTimer m_clock;
    std::function<bool()> m_areServersKnown;
};

DeviceSurvey::Devices surveyCameras(const Platform::CameraBackend& backend)
{
    DeviceSurvey::Devices devices;
    for (const Platform::DeviceInfo& info : backend.devices()) {
        devices.push_back(
            {info, backend.stateOf(info.id), info.id == backend.currentId(), std::nullopt});
    }
    return devices;
}

template <typename Backend>
DeviceSurvey::Devices surveySound(const Backend& backend, const Platform::DeviceList& list)
{
    DeviceSurvey::Devices devices;
    for (const Platform::DeviceInfo& info : list) {
        devices.push_back({info, backend.stateOf(info.id), info.id == backend.currentId(),
                           backend.volumeOf(info.id)});
    }
    return devices;
}

QJsonArray toArray(const DeviceSurvey::Devices& devices)
{
    QJsonArray array;
    for (const DeviceSurvey::Device& device : devices) {
        QJsonObject object{{QStringLiteral("id"), device.info.id},
                           {QStringLiteral("name"), device.info.name},
                           {QStringLiteral("state"), Platform::toString(device.state)},
                           {QStringLiteral("isCurrent"), device.isCurrent}};
        if (device.volume) {
            object.insert(QStringLiteral("volume"), *device.volume);
        }
        array.append(object);
    }
    return array;
}

QString textOf(Platform::DeviceState state)
{
    using State = Platform::DeviceState;
    static const QMap<State, const char*> ids = {
        {State::Absent, "ID_Host_State_Absent"},   {State::Off, "ID_Host_State_Off"},
        {State::Denied, "ID_Host_State_Denied"},   {State::Failed, "ID_Host_State_Failed"},
        {State::Busy, "ID_Host_State_Busy"},       {State::Hung, "ID_Host_State_Hung"},
        {State::Silent, "ID_Host_State_Silent"},   {State::Ready, "ID_Host_State_Ready"},
        {State::Working, "ID_Host_State_Working"},
    };
    return qtTrId(ids.value(state));
}

std::optional<Cause> absence(const DeviceSurvey::Devices& devices,
                             Platform::SoundServerState server, bool isDenied = false)
{
    using State = Platform::SoundServerState;
    if (!devices.empty()) {
        return std::nullopt;
    }
    switch (server) {
    case State::Lost:
        return Cause::ServerLost;
    case State::Starting: // nobody waits longer for it here
    case State::Silent:
        return Cause::ServerSilent;
    case State::NotBuilt:
        return Cause::NotBuilt;
    case State::Running:
        break;
    }
    return isDenied ? Cause::Denied : Cause::Absent;
}

// The word for why a list is empty; null if it isn't.
QJsonValue wordOf(std::optional<Cause> absence)
{
    return absence ? QJsonValue(ReportWords::of(*absence)) : QJsonValue();
}

// Why the list of cameras is empty.
QString cameraAbsenceText(const DeviceSurvey& survey)
{
    const std::optional<Cause> cause = survey.absenceOf(CheckKind::Camera);
    if (cause == Cause::ServerLost) {
        return qtTrId("ID_Host_Devices_CameraServerLost");
    }
    if (cause == Cause::ServerSilent) {
        return qtTrId("ID_Host_Devices_CameraServerSilent");
    }
    if (cause == Cause::NotBuilt) {
        return qtTrId("ID_Host_Reason_NotBuilt");
    }
    return qtTrId(survey.areCamerasDenied ? "ID_Host_State_Denied" : "ID_Host_Devices_None");
}

// Why a list of sound devices is empty.
QString absenceText(Platform::SoundServerState state)
{
    using State = Platform::SoundServerState;
    // The survey is over: a server that is still starting has not answered.
    const char* id = Platform::textId(state == State::Starting ? State::Silent : state);
    return qtTrId(id ? id : "ID_Host_Devices_None");
}

void addTo(TextTable& table, const QString& title, const DeviceSurvey::Devices& devices,
           const QString& absence)
{
    table.addHeading(title);
    if (devices.empty()) {
        table.addHeading(QStringLiteral("    ") + absence);
    }
    for (const DeviceSurvey::Device& device : devices) {
        const QString mark = device.isCurrent ? QStringLiteral("  * ") : QStringLiteral("    ");
        const QString volume =
            device.volume ? QStringLiteral("%1 %").arg(*device.volume) : QStringLiteral("-");
        table.addRow({mark + textOf(device.state), volume, Console::plainLine(device.info.name)});
    }
}

} // namespace

DeviceSurvey DeviceSurvey::of(Platform::Engine& engine)
{
    Watch watch;
    const auto camera = engine.createCamera(watch);
    const auto microphone = engine.createMicrophone(watch);
    const auto speaker = engine.createSpeaker(watch);
    watch.waitForLists([&engine, &camera] {
        using State = Platform::SoundServerState;
        return engine.soundServerState() != State::Starting &&
               camera->serverState() != State::Starting;
    });
    DeviceSurvey result;
    result.cameras = surveyCameras(*camera);
    result.microphones = surveySound(*microphone, microphone->devices());
    result.speakers = surveySound(*speaker, engine.speakers());
    result.soundServer = engine.soundServerState();
    result.cameraServer = camera->serverState();
    result.areCamerasDenied = camera->state() == Platform::DeviceState::Denied;
    return result;
}

QString DeviceSurvey::toText() const
{
    TextTable table;
    const QString silence = absenceText(soundServer);
    addTo(table, qtTrId("ID_Host_Devices_Cameras"), cameras, cameraAbsenceText(*this));
    addTo(table, qtTrId("ID_Host_Devices_Microphones"), microphones, silence);
    addTo(table, qtTrId("ID_Host_Devices_Speakers"), speakers, silence);
    return table.toText();
}

QJsonObject DeviceSurvey::toJson() const
{
    const QJsonObject causes{
        {QStringLiteral("cameras"), wordOf(absenceOf(CheckKind::Camera))},
        {QStringLiteral("microphones"), wordOf(absenceOf(CheckKind::Microphone))},
        {QStringLiteral("speakers"), wordOf(absenceOf(CheckKind::Speaker))}};
    return {{QStringLiteral("cameras"), toArray(cameras)},
            {QStringLiteral("microphones"), toArray(microphones)},
            {QStringLiteral("speakers"), toArray(speakers)},
            {QStringLiteral("causes"), causes}};
}

std::optional<Cause> DeviceSurvey::absenceOf(CheckKind kind) const
{
    switch (kind) {
    case CheckKind::Camera:
        return absence(cameras, cameraServer, areCamerasDenied);
    case CheckKind::Microphone:
        return absence(microphones, soundServer);
    case CheckKind::Speaker:
        return absence(speakers, soundServer);
    case CheckKind::Network:
    case CheckKind::Loop:
        break;
    }
    return std::nullopt;
}

bool DeviceSurvey::isServerMissing() const
{
    using State = Platform::SoundServerState;
    return soundServer != State::Running || cameraServer != State::Running;
}
