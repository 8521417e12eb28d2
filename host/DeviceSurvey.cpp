// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/DeviceSurvey.h"

#include "host/Console.h"
#include "platform/backend/Engine.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QTextStream>
#include <QTimer>

namespace {

// Servers are asked in the background: the lists have settled when nothing comes for a while.
constexpr int FirstAnswerMs = 1000;
constexpr int QuietMs = 150;
constexpr int LongestMs = 3000;

// Listens to one device of each kind and waits for the event loop.
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

    void waitForLists()
    {
        QTimer::singleShot(LongestMs, &m_loop, &QEventLoop::quit);
        m_quiet.start(FirstAnswerMs);
        m_loop.exec();
    }

    void waitForChoice()
    {
        m_quiet.start(QuietMs);
        m_loop.exec();
    }

    void cameraListChanged() override { stir(); }
    void currentCameraChanged(const QString&) override { stir(); }
    void cameraWorkStateChanged(const QString&, bool) override { stir(); }
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

// The choice of a camera is remembered for the next check: none is made here.
DeviceSurvey::Devices surveyCameras(const Platform::CameraBackend& backend)
{
    DeviceSurvey::Devices devices;
    for (const Platform::DeviceInfo& info : backend.devices()) {
        devices.push_back(
            {info, backend.stateOf(info.id), info.id == backend.currentId(), std::nullopt});
    }
    return devices;
}

// State and volume are told of the chosen device only, so that each one is chosen in turn. This
// choice is the session's own and ends with it.
template <typename Backend>
DeviceSurvey::Devices surveySound(Backend& backend, const Platform::DeviceList& list, Watch& watch)
{
    const QString current = backend.currentId();
    DeviceSurvey::Devices devices;
    for (const Platform::DeviceInfo& info : list) {
        backend.setCurrent(info.id);
        watch.waitForChoice();
        devices.push_back({info, backend.state(), info.id == current, backend.volume()});
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

void writeTable(QTextStream& stream, const QString& title, const DeviceSurvey::Devices& devices)
{
    constexpr int StateWidth = 10;
    constexpr int VolumeWidth = 7;
    stream << title << '\n';
    if (devices.empty()) {
        stream << "    none found\n";
    }
    for (const DeviceSurvey::Device& device : devices) {
        const QString volume =
            device.volume ? QStringLiteral("%1 %").arg(*device.volume) : QStringLiteral("-");
        stream << (device.isCurrent ? "  * " : "    ")
               << Console::padded(Platform::toString(device.state), StateWidth)
               << Console::padded(volume, VolumeWidth) << Console::plainLine(device.info.name)
               << '\n';
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
    result.microphones = surveySound(*microphone, microphone->devices(), watch);
    result.speakers = surveySound(*speaker, engine.speakers(), watch);
    return result;
}

QString DeviceSurvey::toText() const
{
    QString text;
    QTextStream stream(&text);
    writeTable(stream, QStringLiteral("Cameras"), cameras);
    writeTable(stream, QStringLiteral("Microphones"), microphones);
    writeTable(stream, QStringLiteral("Speakers"), speakers);
    stream.flush();
    return text;
}

QJsonObject DeviceSurvey::toJson() const
{
    return {{QStringLiteral("cameras"), toArray(cameras)},
            {QStringLiteral("microphones"), toArray(microphones)},
            {QStringLiteral("speakers"), toArray(speakers)}};
}
