// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/CameraSession.h"

#include "platform/backend/Log.h"

namespace Platform {

namespace {

constexpr std::chrono::milliseconds StartDeadline(3000);
constexpr std::chrono::milliseconds RetryDelay(500);
constexpr std::chrono::milliseconds WatchPeriod(100);
// What is asked of a camera that offers several sizes: enough for a sharp preview on any screen.
const QSize AskedSize(640, 480);

} // namespace

CameraSession::CameraSession(PipeWireConnection& connection, std::shared_ptr<FrameSlot> slot,
                             std::unique_ptr<CameraFeed::Listener> listener)
    : m_connection(connection),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_deadlineTimer(connection.loop(), [this] { onDeadline(); }),
      m_retryTimer(connection.loop(), [this] { onRetry(); }),
      m_watchTimer(connection.loop(), [this] { onWatch(); })
{
    m_connection.addObserver(this);
}

CameraSession::~CameraSession()
{
    m_connection.removeObserver(this);
}

void CameraSession::open(int generation, const QString& id)
{
    close();
    m_generation = generation;
    m_id = id;
    m_state = DeviceState::Ready;
    openStream();
}

void CameraSession::close()
{
    m_id.clear();
    dropStream();
}

void CameraSession::camerasChanged()
{
    const CameraList& cameras = m_connection.cameras();
    if (cameras.serialOf(m_id) != m_serial) {
        dropStream();
        m_serial.clear();
        report(DeviceState::Ready); // whatever was wrong with the one that left
    }
    m_listener->listArrived(cameras.devices(), cameras.preferredId(), m_connection.isDenied());
    openStream();
}

void CameraSession::serverMissing()
{
    m_listener->serverMissing();
}

void CameraSession::linkFailed(const QString& serial, quint32 readerId, const QString& error)
{
    if (m_stream && serial == m_serial && readerId == m_stream->nodeId()) {
        streamEnded(error.isEmpty() ? QStringLiteral("The link to the camera failed") : error);
    }
}

void CameraSession::cameraFailed(const QString& serial, const QString& error)
{
    if (m_stream && serial == m_serial) {
        streamEnded(error);
    }
}

void CameraSession::connectionLost()
{
    dropStream();
    report(DeviceState::Ready);
}

DeviceState CameraSession::stateOf(const QString& error)
{
    const auto says = [&error](const char* word) {
        return error.contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    if (says("busy")) {
        return DeviceState::Busy;
    }
    if (says("denied") || says("not permitted")) {
        return DeviceState::Denied;
    }
    return says("no node available") ? DeviceState::Ready : DeviceState::Failed;
}

void CameraSession::streamRuns()
{
    m_deadlineTimer.stop();
    m_runsSince = FrameSlot::Clock::now();
    m_watchTimer.startRepeating(WatchPeriod);
}

void CameraSession::streamEnded(const QString& error)
{
    if (!error.isEmpty()) {
        qCInfo(Log::camera, "%s", qUtf8Printable(error));
        m_slot->interrupt(m_generation); // first, or it would pass for one that still delivers
        report(stateOf(error));
    }
    m_retryTimer.startOnce({}); // it can't be destroyed from inside its own event
}

void CameraSession::rateAgreed(double framesPerSecond)
{
    m_slot->setRate(m_generation, framesPerSecond);
}

void CameraSession::frameReceived(const PixelFormat& format, const FrameView& view,
                                  const FrameOrientation& orientation)
{
    const QImage picture = m_converter.convert(format, view, orientation, m_outputSize);
    if (picture.isNull()) {
        return;
    }
    const bool mustNotify = m_slot->put(m_generation, picture, format.size);
    report(DeviceState::Working);
    if (mustNotify) {
        m_listener->frameArrived();
    }
}

void CameraSession::openStream()
{
    const std::optional<QString> serial = m_connection.cameras().serialOf(m_id);
    if (m_stream || m_retryTimer.isActive() || !serial || !m_connection.isConnected()) {
        return;
    }
    m_serial = *serial;
    if (m_connection.cameras().isUnreadable(m_id)) { // nobody would say so: it would pass for hung
        qCInfo(Log::camera, "The camera offers no format that can be shown");
        report(DeviceState::Failed);
        return;
    }
    m_stream = std::make_unique<CameraStream>(m_connection.context(), m_serial, AskedSize,
                                              *static_cast<CameraStream::Listener*>(this));
    m_deadlineTimer.startOnce(StartDeadline);
    const QString error = m_connection.errorOf(m_serial);
    if (!error.isEmpty()) {
        report(stateOf(error));
    }
}

void CameraSession::dropStream()
{
    m_deadlineTimer.stop();
    m_retryTimer.stop();
    m_watchTimer.stop();
    m_stream.reset();
    m_slot->interrupt(m_generation);
    if (m_state == DeviceState::Working || m_state == DeviceState::Silent) {
        report(DeviceState::Ready);
    }
}

void CameraSession::onDeadline()
{
    dropStream();
    reportUnlessExplained(DeviceState::Hung);
    m_retryTimer.startOnce(RetryDelay);
}

void CameraSession::onRetry()
{
    if (m_stream) {
        dropStream();
        m_retryTimer.startOnce(RetryDelay);
    } else {
        openStream();
    }
}

void CameraSession::onWatch()
{
    if (m_slot->isSilent(m_runsSince)) {
        reportUnlessExplained(DeviceState::Silent);
    }
}

// That there are no pictures says less than a reason why.
void CameraSession::reportUnlessExplained(DeviceState state)
{
    if (isUsable(m_state) && m_state != DeviceState::Busy) {
        report(state);
    }
}

void CameraSession::report(DeviceState state)
{
    if (m_state != state && !m_id.isEmpty()) {
        m_state = state;
        m_listener->stateChanged(m_generation, state);
    }
}

} // namespace Platform
