// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"

#include "host/Console.h"
#include "host/TextTable.h"
#include "platform/backend/Engine.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QMap>
#include <QTimer>

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
        QObject::connect(&m_quiet, &QTimer::timeout, &m_loop, &QEventLoop::quit);
    }

    virtual ~Watch() = default;

    void waitForLists()
    {
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

// Why a list of sound devices is empty.
QString absenceText(Platform::SoundServerState state)
{
    using State = Platform::SoundServerState;
    // Nobody waits longer here for a server that starts.
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
    watch.waitForLists();
    DeviceSurvey result;
    result.cameras = surveyCameras(*camera);
    result.microphones = surveySound(*microphone, microphone->devices());
    result.speakers = surveySound(*speaker, engine.speakers());
    result.soundServer = engine.soundServerState();
    return result;
}

QString DeviceSurvey::toText() const
{
    TextTable table;
    const QString silence = absenceText(soundServer);
    addTo(table, qtTrId("ID_Host_Devices_Cameras"), cameras, qtTrId("ID_Host_Devices_None"));
    addTo(table, qtTrId("ID_Host_Devices_Microphones"), microphones, silence);
    addTo(table, qtTrId("ID_Host_Devices_Speakers"), speakers, silence);
    return table.toText();
}

QJsonObject DeviceSurvey::toJson() const
{
    return {{QStringLiteral("cameras"), toArray(cameras)},
            {QStringLiteral("microphones"), toArray(microphones)},
            {QStringLiteral("speakers"), toArray(speakers)}};
}
