// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Session.h"

#include "platform/backend/Log.h"
#include "platform/backend/EndingThreads.h"

namespace Platform {

namespace {

constexpr std::chrono::milliseconds StartDeadline(3000);
constexpr std::chrono::milliseconds RetryDelay(500);
constexpr std::chrono::milliseconds WatchPeriod(100);
constexpr std::chrono::milliseconds BurstWindow(50);

// A place is called the same where PipeWire finds the camera.
CameraNode nodeOf(const VideoDevices::Properties& properties)
{
    CameraNode node;
    node.serial = properties.value(QStringLiteral("DEVNAME"));
    node.name = node.serial;
    node.place = properties.value(QStringLiteral("ID_PATH"));
    if (node.place.isEmpty()) {
        node.place = properties.value(QStringLiteral("ID_SERIAL"));
    }
    node.description = properties.value(QStringLiteral("ID_V4L_PRODUCT"));
    node.capabilities = properties.value(QStringLiteral("ID_V4L_CAPABILITIES"));
    return node;
}

} // namespace

V4l2Session::V4l2Session(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                         std::unique_ptr<CameraFeed::Listener> user,
                         std::shared_ptr<EndingThreads> ending)
    : m_parts(parts),
      m_slot(std::move(slot)),
      m_user(std::move(user)),
      m_ending(std::move(ending)),
      m_devices(parts.makeDevices())
{
    m_watchTimer.setInterval(WatchPeriod);
    QObject::connect(&m_watchTimer, &QTimer::timeout, &m_watchTimer, [this] { onWatch(); });
    m_retryTimer.setInterval(RetryDelay);
    m_retryTimer.setSingleShot(true);
    QObject::connect(&m_retryTimer, &QTimer::timeout, &m_retryTimer, [this] { openStream(); });
    m_announceTimer.setInterval(BurstWindow);
    m_announceTimer.setSingleShot(true);
    QObject::connect(&m_announceTimer, &QTimer::timeout, &m_announceTimer, [this] { announce(); });
    m_devices->start(*this);
    announce();
}

V4l2Session::~V4l2Session()
{
    close();
}

void V4l2Session::open(int generation, const QString& id)
{
    close();
    m_generation = generation;
    m_id = id;
    m_state = DeviceState::Ready;
    openStream();
}

void V4l2Session::close()
{
    m_id.clear();
    dropStream();
}

void V4l2Session::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    if (m_stream) {
        m_stream->setOutputSize(pixels);
    }
}

void V4l2Session::deviceFound(const VideoDevices::Properties& properties)
{
    const CameraNode node = nodeOf(properties);
    const auto known = m_numbers.emplace(node.serial, m_lastNumber + 1);
    m_lastNumber += known.second ? 1 : 0;
    if (m_cameras.add(known.first->second, node)) {
        m_announceTimer.start();
    }
}

void V4l2Session::deviceGone(const QString& path)
{
    const auto known = m_numbers.find(path);
    if (known == m_numbers.end()) {
        return;
    }
    if (m_cameras.remove(known->second)) {
        m_announceTimer.start();
    }
    m_numbers.erase(known);
    if (path == m_path) {
        dropStream();
        report(DeviceState::Ready); // whatever was wrong with the one that left
    }
}

void V4l2Session::streamOpens()
{
    m_opensSince = Clock::now();
}

void V4l2Session::streamRuns()
{
    m_opensSince.reset();
    m_runsSince = Clock::now();
}

void V4l2Session::firstFrameArrived()
{
    report(DeviceState::Working);
}

void V4l2Session::streamEnded(DeviceState state, const QString& error)
{
    qCInfo(Log::camera, "%s", qUtf8Printable(error));
    dropStream();
    report(state);
    m_retryTimer.start();
}

void V4l2Session::announce()
{
    m_announceTimer.stop();
    m_user->listArrived(m_cameras.devices(), m_cameras.preferredId(), false);
    openStream();
}

void V4l2Session::openStream()
{
    const std::optional<QString> path = m_cameras.serialOf(m_id);
    if (m_stream || m_retryTimer.isActive() || !path) {
        return;
    }
    m_path = *path;
    m_mailbox.emplace();
    m_stream = std::make_unique<V4l2Stream>(m_parts, m_path, m_generation, m_slot, m_user,
                                            m_mailbox->sender(),
                                            *static_cast<V4l2Stream::Listener*>(this));
    m_stream->setOutputSize(m_outputSize);
    m_stream->start();
    m_watchTimer.start();
}

void V4l2Session::dropStream()
{
    m_watchTimer.stop();
    m_retryTimer.stop();
    m_opensSince.reset();
    m_runsSince.reset();
    m_path.clear();
    m_mailbox.reset();
    if (m_stream) {
        m_stream->requestInterruption();
        m_ending->take(std::move(m_stream));
    }
    m_slot->interrupt(m_generation);
    if (m_state == DeviceState::Working || m_state == DeviceState::Silent) {
        report(DeviceState::Ready);
    }
}

// A start that hangs isn't tried again beside the first one: that would only hang, too.
void V4l2Session::onWatch()
{
    if (m_opensSince && Clock::now() - *m_opensSince > StartDeadline) {
        m_opensSince.reset();
        report(DeviceState::Hung);
    } else if (m_runsSince && m_slot->delivers()) {
        report(DeviceState::Working);
    } else if (m_runsSince && m_slot->isSilent(*m_runsSince)) {
        report(DeviceState::Silent);
    }
}

void V4l2Session::report(DeviceState state)
{
    if (m_state != state && !m_id.isEmpty()) {
        m_state = state;
        m_user->stateChanged(m_generation, state);
    }
}

} // namespace Platform
