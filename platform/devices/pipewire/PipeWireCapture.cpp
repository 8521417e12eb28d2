// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireCapture.h"

#include "platform/backend/Log.h"

namespace Platform {

namespace {

// If a camera offers several sizes: enough for a sharp preview on any screen.
const QSize PreferredSize(640, 480);

// What the words of the server or of a driver mean. Ready: no more than the list tells anyway.
DeviceState stateOf(const QString& error)
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

} // namespace

PipeWireCapture::PipeWireCapture(PipeWireConnection& connection, std::shared_ptr<FrameSlot> slot,
                                 std::shared_ptr<CameraFeed::Listener> listener)
    : m_connection(connection),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_opening(*this, {/*retriesHungStart*/ true, /*keepsReason*/ true}, m_slot, m_listener),
      m_timer(connection.loop(), [this] { m_opening.wake(); })
{
    m_connection.addObserver(this);
}

PipeWireCapture::~PipeWireCapture()
{
    close();
    m_connection.removeObserver(this);
}

void PipeWireCapture::camerasChanged()
{
    const CameraList& cameras = m_connection.cameras();
    m_opening.forgetCameraIfReplaced();
    m_listener->listArrived(cameras.devices(), cameras.preferredId(), m_connection.server());
    m_opening.openIfPresent();
}

void PipeWireCapture::serverMissing()
{
    m_listener->serverMissing();
}

void PipeWireCapture::linkFailed(const QString& serial, quint32 readerId, const QString& error)
{
    if (m_stream && serial == m_serial && readerId == m_stream->nodeId()) {
        const QString text =
            error.isEmpty() ? QStringLiteral("The link to the camera failed") : error;
        // What another program agreed on with the camera binds all who read from it.
        streamBlocked(text, stateOf(text));
    }
}

void PipeWireCapture::cameraFailed(const QString& serial, const QString& error)
{
    if (m_stream && serial == m_serial) {
        streamEnded(error);
    }
}

void PipeWireCapture::connectionLost()
{
    m_opening.forgetCamera();
}

void PipeWireCapture::streamRuns()
{
    m_didRun = true;
    m_opening.streamRuns();
}

void PipeWireCapture::streamEnded(const QString& error)
{
    if (error.isEmpty()) {
        // If another program has the camera for itself, the session manager ends a new stream.
        const QString reader = m_didRun ? QString() : m_connection.programReading(m_serial);
        m_opening.streamEnded(
            reader.isEmpty() ? std::nullopt : std::make_optional(DeviceState::Busy), reader);
        return;
    }
    const DeviceState state = stateOf(error);
    if (state == DeviceState::Ready) {
        streamBlocked(error, state); // the session manager found no camera that it may give us
        return;
    }
    qCInfo(Log::camera, "%s", qUtf8Printable(error));
    m_opening.streamEnded(state, userOf(m_serial, state));
}

// Blames the program that reads from the camera, if there is one.
void PipeWireCapture::streamBlocked(const QString& error, DeviceState otherwise)
{
    qCInfo(Log::camera, "%s", qUtf8Printable(error));
    const QString reader = m_connection.programReading(m_serial);
    const DeviceState state = reader.isEmpty() ? otherwise : DeviceState::Busy;
    m_opening.streamEnded(state, reader.isEmpty() ? userOf(m_serial, state) : reader);
}

QString PipeWireCapture::userOf(const QString& serial, DeviceState state) const
{
    return state == DeviceState::Busy ? m_connection.programUsing(serial) : QString();
}

void PipeWireCapture::rateAgreed(double framesPerSecond)
{
    m_slot->setRate(m_opening.generation(), framesPerSecond);
}

void PipeWireCapture::frameReceived(const FrameFormat& format, const FrameView& view,
                                    const FrameOrientation& orientation)
{
    const QImage frame = m_converter.convert(format, view, orientation, m_outputSize);
    if (frame.isNull()) {
        return;
    }
    const bool mustNotify = m_slot->put(m_opening.generation(), frame, format.size);
    m_opening.frameArrived();
    if (mustNotify) {
        m_listener->frameArrived();
    }
}

std::optional<QString> PipeWireCapture::serialOf(const QString& id) const
{
    return m_connection.isConnected() ? m_connection.cameras().serialOf(id) : std::nullopt;
}

bool PipeWireCapture::openStream(const QString& serial)
{
    if (!m_connection.cameras().isReadable(serial)) {
        qCInfo(Log::camera, "The camera offers no format that can be shown");
        m_opening.setReason(DeviceState::Failed); // the server would say nothing at all
        return false;
    }
    m_serial = serial;
    m_didRun = false;
    m_stream = std::make_unique<PipeWireStream>(m_connection.context(), serial, PreferredSize,
                                                *static_cast<PipeWireStream::Listener*>(this));
    m_opening.startBegan();
    const QString error = m_connection.errorOf(serial);
    if (!error.isEmpty()) {
        const DeviceState state = stateOf(error);
        m_opening.setReason(state, userOf(serial, state));
    }
    return true;
}

} // namespace Platform
