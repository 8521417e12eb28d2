// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireCamera.h"

#include "platform/backend/ReportSink.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/pipewire/CameraLog.h"
#include "platform/devices/pipewire/CameraSession.h"
#include "platform/devices/pipewire/PictureSlot.h"
#include "platform/devices/pipewire/PipeWireThread.h"

#include <algorithm>

namespace Platform {

namespace {

const QString CurrentCameraKey = QStringLiteral("camera/current");

} // namespace

// Carries the session's news to the GUI thread. Late ones are dropped by the mailbox.
class PipeWireCamera::Post final : public CameraSession::Listener
{
public:
    Post(PipeWireCamera* camera, Mailbox::Sender sender) : m_camera(camera), m_sender(sender) {}

    void listArrived(const DeviceList& devices, const QString& preferredId, bool isDenied) override
    {
        m_sender.post([camera = m_camera, devices, preferredId, isDenied] {
            camera->onListArrived(devices, preferredId, isDenied);
        });
    }
    void stateChanged(int generation, DeviceState state) override
    {
        m_sender.post(
            [camera = m_camera, generation, state] { camera->onStateChanged(generation, state); });
    }
    void pictureArrived() override
    {
        m_sender.post([camera = m_camera] { camera->onPictureArrived(); });
    }

private:
    PipeWireCamera* m_camera;
    Mailbox::Sender m_sender;
};

PipeWireCamera::PipeWireCamera(Listener& listener, std::shared_ptr<PipeWireThread> thread,
                               SettingsStore& settings, ReportSink& report)
    : m_listener(listener),
      m_thread(std::move(thread)),
      m_settings(settings),
      m_report(report),
      m_slot(std::make_shared<PictureSlot>()),
      m_session(std::make_shared<std::unique_ptr<CameraSession>>())
{
    auto post = std::make_shared<std::unique_ptr<CameraSession::Listener>>(
        std::make_unique<Post>(this, m_mailbox.sender()));
    m_thread->post([session = m_session, slot = m_slot, post](PipeWireConnection& connection) {
        *session = std::make_unique<CameraSession>(connection, slot, std::move(*post));
    });
}

PipeWireCamera::~PipeWireCamera()
{
    stop();
    m_mailbox.close();
    m_thread->post([session = m_session](PipeWireConnection&) { session->reset(); });
}

void PipeWireCamera::setCurrent(const QString& id)
{
    m_settings.setValue(CurrentCameraKey, id);
    if (m_isChosen && id == m_currentId) {
        return;
    }
    choose(id);
    notifyCurrentChanged();
}

DeviceState PipeWireCamera::state() const
{
    if (m_isDenied) {
        return DeviceState::Denied;
    }
    if (!m_isChosen) {
        return DeviceState::Absent;
    }
    if (m_currentId.isEmpty()) {
        return DeviceState::Off;
    }
    if (findDevice(m_currentId) == nullptr) {
        return DeviceState::Absent;
    }
    if (delivers()) {
        return DeviceState::Working;
    }
    return m_openState == DeviceState::Working ? DeviceState::Silent : m_openState;
}

bool PipeWireCamera::delivers() const
{
    return m_slot->delivers();
}

void PipeWireCamera::start()
{
    if (!m_isStarted) {
        m_isStarted = true;
        openCurrent();
    }
}

void PipeWireCamera::stop()
{
    if (m_isStarted) {
        recordMeasurement();
        m_isStarted = false;
        openCurrent();
    }
}

void PipeWireCamera::setOutputSize(const QSize& pixels)
{
    postToSession([pixels](CameraSession& session) { session.setOutputSize(pixels); });
}

QImage PipeWireCamera::latestPicture() const
{
    return m_slot->newest();
}

void PipeWireCamera::onListArrived(const DeviceList& devices, const QString& preferredId,
                                   bool isDenied)
{
    const bool isListChanged = devices != m_devices;
    m_devices = devices;
    m_isDenied = isDenied;
    if (!m_isChosen && !m_devices.empty()) {
        chooseFirst(preferredId);
    }
    if (const DeviceInfo* device = findDevice(m_currentId)) {
        m_currentName = device->name;
    }
    if (isListChanged) {
        notifyCurrentChanged(); // whoever refills its list must select anew
        m_listener.cameraListChanged();
    } else {
        notifyWorkState();
    }
}

void PipeWireCamera::onStateChanged(int generation, DeviceState state)
{
    if (generation != m_generation) {
        return;
    }
    m_openState = state;
    qCInfo(CameraLog, "\"%s\" is %s", qUtf8Printable(m_currentName),
           qUtf8Printable(toString(this->state())));
    notifyWorkState();
}

void PipeWireCamera::onPictureArrived()
{
    m_slot->notificationArrived();
    if (m_isStarted) {
        m_listener.pictureArrived();
    }
}

void PipeWireCamera::postToSession(SessionJob job)
{
    m_thread->post([session = m_session, job = std::move(job)](PipeWireConnection&) {
        if (*session) {
            job(**session);
        }
    });
}

// What was chosen the last time is taken where it is there, and isn't waited for where it isn't.
void PipeWireCamera::chooseFirst(const QString& preferredId)
{
    const QVariant remembered = m_settings.value(CurrentCameraKey);
    const QString id = remembered.toString();
    const bool isOff = remembered.isValid() && id.isEmpty();
    choose(isOff || findDevice(id) != nullptr ? id : preferredId);
}

void PipeWireCamera::choose(const QString& id)
{
    m_isChosen = true;
    m_didDeliver = false;
    m_currentId = id;
    const DeviceInfo* device = findDevice(id);
    m_currentName = device == nullptr ? QString() : device->name;
    if (m_isStarted) {
        openCurrent();
    }
}

void PipeWireCamera::openCurrent()
{
    m_openState = DeviceState::Ready;
    if (m_isStarted && !m_currentId.isEmpty()) {
        m_generation = m_slot->open();
        postToSession([generation = m_generation, id = m_currentId](CameraSession& session) {
            session.open(generation, id);
        });
    } else {
        m_generation = 0;
        m_slot->close();
        postToSession([](CameraSession& session) { session.close(); });
    }
}

void PipeWireCamera::recordMeasurement()
{
    QJsonObject figures = m_slot->figures();
    figures.insert(QStringLiteral("state"), toString(state()));
    figures.insert(QStringLiteral("device"), m_currentName);
    m_report.recordMeasurement(QStringLiteral("camera"), figures);
}

const DeviceInfo* PipeWireCamera::findDevice(const QString& id) const
{
    const auto it = std::find_if(m_devices.cbegin(), m_devices.cend(),
                                 [&id](const DeviceInfo& device) { return device.id == id; });
    return it == m_devices.cend() ? nullptr : &*it;
}

// By letter, as no listener is called from inside a call.
void PipeWireCamera::notifyCurrentChanged()
{
    m_mailbox.sender().post([this] {
        m_wasUsable = isUsable(state());
        m_didDeliver = m_didDeliver && delivers(); // that it works is always told
        m_listener.currentCameraChanged(m_currentId);
    });
}

void PipeWireCamera::notifyWorkState()
{
    const bool usable = isUsable(state());
    const bool works = delivers();
    if (usable != m_wasUsable || works != m_didDeliver) {
        m_wasUsable = usable;
        m_didDeliver = works;
        m_listener.cameraWorkStateChanged(m_currentId, works);
    }
}

} // namespace Platform
