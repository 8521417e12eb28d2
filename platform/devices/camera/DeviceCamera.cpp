// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/DeviceCamera.h"

#include "platform/backend/Log.h"
#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultKeys.h"
#include "platform/backend/SettingsStore.h"
#include "platform/devices/camera/FrameSlot.h"

namespace Platform {

namespace {

const QString CurrentCameraKey = QStringLiteral("camera/current");

} // namespace

// Posts the feed's calls to the GUI thread. The mailbox drops late ones.
class DeviceCamera::Post final : public CameraFeed::Listener
{
public:
    Post(DeviceCamera* camera, Mailbox::Sender sender)
        : m_camera(camera), m_sender(std::move(sender))
    {
    }

    void listArrived(const DeviceList& devices, const QString& preferredId,
                     CameraServer server) override
    {
        m_sender.post([camera = m_camera, devices, preferredId, server] {
            camera->onListArrived(devices, preferredId, server);
        });
    }
    void stateChanged(int generation, DeviceState state, const QString& program) override
    {
        m_sender.post([camera = m_camera, generation, state, program] {
            camera->onStateChanged(generation, state, program);
        });
    }
    void frameArrived() override
    {
        m_sender.post([camera = m_camera] { camera->onFrameArrived(); });
    }
    void serverMissing() override
    {
        m_sender.post([camera = m_camera] { camera->onServerMissing(); });
    }

private:
    DeviceCamera* m_camera;
    Mailbox::Sender m_sender;
};

DeviceCamera::DeviceCamera(Listener& listener, const FeedMaker& makeFeed,
                           const std::shared_ptr<EndingThreads>& ending, SettingsStore& settings,
                           ReportSink& report)
    : m_listener(listener),
      m_settings(settings),
      m_report(report),
      m_slot(std::make_shared<FrameSlot>())
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(CameraCause::StartTime);
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] {
        m_isOverdue = true;
        notifyCause();
    });
    m_feed = makeFeed(m_slot, std::make_unique<Post>(this, m_mailbox.sender()), ending);
}

DeviceCamera::~DeviceCamera()
{
    stop();
    m_mailbox.close();
}

void DeviceCamera::setCurrent(const QString& id)
{
    m_settings.setValue(CurrentCameraKey, id);
    if (m_isChosen && id == m_currentId) {
        return;
    }
    choose(id);
    notifyCurrentChanged();
}

DeviceState DeviceCamera::state() const
{
    if (m_server == CameraServer::Denies) {
        return DeviceState::Denied;
    }
    if (!m_isChosen) {
        return DeviceState::Absent;
    }
    if (m_currentId.isEmpty()) {
        return DeviceState::Off;
    }
    if (!findDevice(m_devices, m_currentId)) {
        return DeviceState::Absent;
    }
    if (delivers()) {
        return DeviceState::Working;
    }
    return m_openState == DeviceState::Working ? DeviceState::Silent : m_openState;
}

DeviceState DeviceCamera::stateOf(const QString& id) const
{
    if (m_isChosen && id == m_currentId) {
        return state();
    }
    if (m_server == CameraServer::Denies) {
        return DeviceState::Denied;
    }
    return findDevice(m_devices, id) ? DeviceState::Ready : DeviceState::Absent;
}

bool DeviceCamera::delivers() const
{
    return m_slot->delivers();
}

CameraCause DeviceCamera::cause() const
{
    using Kind = CameraCause::Kind;
    if (!m_isStarted) {
        return {};
    }
    const Kind kind = expectedCause();
    if (kind == Kind::Starting && m_isOverdue) {
        return {overdueCause(), {}};
    }
    return {kind, kind == Kind::Busy ? m_program : QString()};
}

SoundServerState DeviceCamera::serverState() const
{
    if (m_server == CameraServer::NotBuilt) {
        return SoundServerState::NotBuilt;
    }
    // The system itself lists cameras, too: then nobody misses the server.
    const bool isMissed = m_server == CameraServer::Missing && m_devices.empty();
    if (m_server == CameraServer::Lost || isMissed) {
        return SoundServerState::Lost;
    }
    return m_isListed ? SoundServerState::Running : SoundServerState::Starting;
}

void DeviceCamera::start()
{
    if (!m_isStarted) {
        m_isStarted = true;
        openCurrent();
    }
}

void DeviceCamera::stop()
{
    if (m_isStarted) {
        recordMeasurement();
        m_isStarted = false;
        openCurrent();
    }
}

void DeviceCamera::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    m_feed->setOutputSize(pixels);
}

QImage DeviceCamera::latestFrame() const
{
    return m_slot->newest();
}

void DeviceCamera::onListArrived(const DeviceList& devices, const QString& preferredId,
                                 CameraServer server)
{
    const bool isListChanged = devices != m_devices;
    m_devices = devices;
    m_server = server;
    m_isListed = true;
    if (!m_isChosen && !m_devices.empty()) {
        chooseFirst(preferredId);
    }
    if (const DeviceInfo* device = findDevice(m_devices, m_currentId)) {
        m_currentName = device->name;
    }
    if (isListChanged) {
        notifyCurrentChanged(); // a refilled list must select its entry again
        m_listener.cameraListChanged();
    } else {
        notifyWorkState();
    }
    notifyCause();
}

void DeviceCamera::onStateChanged(int generation, DeviceState state, const QString& program)
{
    if (generation != m_generation) {
        return;
    }
    m_openState = state;
    m_program = printableName(program);
    qCInfo(Log::camera, "\"%s\" is %s", qUtf8Printable(m_currentName),
           qUtf8Printable(toString(this->state())));
    notifyWorkState();
    notifyCause();
}

void DeviceCamera::onFrameArrived()
{
    m_slot->notificationArrived();
    if (m_isStarted) {
        notifyWorkState(); // "Working" may have arrived when the frame before was too old
        m_listener.frameArrived();
        notifyCause();
    }
}

void DeviceCamera::onServerMissing()
{
    m_server = CameraServer::Lost;
    notifyCause();
}

// The choice of the last time, if it is there. If not, we don't wait for it.
void DeviceCamera::chooseFirst(const QString& preferredId)
{
    const QVariant remembered = m_settings.value(CurrentCameraKey);
    const QString id = remembered.toString();
    const bool isOff = remembered.isValid() && id.isEmpty();
    choose(isOff || findDevice(m_devices, id) ? id : preferredId);
}

void DeviceCamera::choose(const QString& id)
{
    m_isChosen = true;
    m_didDeliver = false;
    m_currentId = id;
    m_currentName = nameIn(m_devices, id);
    if (m_isStarted) {
        openCurrent();
    }
}

void DeviceCamera::openCurrent()
{
    m_openState = DeviceState::Ready;
    m_isOverdue = false;
    m_patience.stop();
    m_mailbox.sender().post([this] { notifyCause(); });
    if (m_isStarted && !m_currentId.isEmpty()) {
        m_generation = m_slot->open();
        m_feed->open(m_generation, m_currentId);
    } else {
        m_generation = 0;
        m_slot->close();
        m_feed->close();
    }
}

void DeviceCamera::recordMeasurement()
{
    // If the camera was switched off, the slot still has the figures of the one before.
    QJsonObject figures = m_currentId.isEmpty() ? QJsonObject() : m_slot->figures();
    const bool isNotBuilt = m_server == CameraServer::NotBuilt; // which is not that there is none
    figures.insert(QStringLiteral("state"),
                   isNotBuilt ? toString(CameraCause::Kind::NotBuilt) : toString(state()));
    figures.insert(QStringLiteral("device"), m_currentName);
    const QString word = toString(cause().kind);
    // Also if there is none: the one of the time before must not stay.
    figures.insert(ResultKeys::Cause, word.isEmpty() ? QJsonValue() : word);
    m_report.recordMeasurement(QStringLiteral("camera"), figures);
}

// Posted, because no listener is called from inside a call.
void DeviceCamera::notifyCurrentChanged()
{
    m_mailbox.sender().post([this] {
        m_wasUsable = isUsable(state());
        m_didDeliver = m_didDeliver && delivers(); // so that "works" is always told
        m_listener.currentCameraChanged(m_currentId);
    });
}

void DeviceCamera::notifyWorkState()
{
    const bool usable = isUsable(state());
    const bool works = delivers();
    if (usable != m_wasUsable || works != m_didDeliver) {
        m_wasUsable = usable;
        m_didDeliver = works;
        m_listener.cameraWorkStateChanged(m_currentId, works);
    }
}

// A frame may need some time even if nothing is wrong.
CameraCause::Kind DeviceCamera::expectedCause() const
{
    using Kind = CameraCause::Kind;
    if (m_server == CameraServer::Denies) {
        return Kind::Denied;
    }
    if (m_server == CameraServer::Lost) {
        return Kind::ServerLost;
    }
    if (m_server == CameraServer::NotBuilt) {
        return Kind::NotBuilt;
    }
    if (!m_isListed) {
        return Kind::Starting;
    }
    if (!m_isChosen) {
        return Kind::Absent;
    }
    if (m_currentId.isEmpty()) {
        return Kind::None;
    }
    if (!findDevice(m_devices, m_currentId)) {
        return Kind::Unplugged;
    }
    if (delivers()) {
        return m_slot->isBlack() ? Kind::Black : Kind::None;
    }
    switch (m_openState) {
    case DeviceState::Busy:
        return Kind::Busy;
    case DeviceState::Denied:
        return Kind::Denied;
    case DeviceState::Failed:
        return Kind::Failed;
    case DeviceState::Unreadable:
        return Kind::Unreadable;
    case DeviceState::Hung:
        return Kind::Hung;
    default:
        return m_slot->hasStalled() ? Kind::Stalled : Kind::Starting;
    }
}

CameraCause::Kind DeviceCamera::overdueCause() const
{
    if (!m_isListed) {
        return CameraCause::Kind::ServerLost;
    }
    return m_openState == DeviceState::Silent ? CameraCause::Kind::Stalled
                                              : CameraCause::Kind::Hung;
}

// From the event loop only.
void DeviceCamera::notifyCause()
{
    if (!m_isStarted || expectedCause() != CameraCause::Kind::Starting) {
        m_isOverdue = false;
        m_patience.stop();
    } else if (!m_isOverdue && !m_patience.isActive()) {
        m_patience.start();
    }
    const CameraCause now = cause();
    if (m_knownCause != now) {
        m_knownCause = now;
        m_listener.cameraCauseChanged();
    }
}

} // namespace Platform
