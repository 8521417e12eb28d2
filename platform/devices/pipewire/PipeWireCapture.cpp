// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireCapture.h"

#include "platform/backend/Log.h"

#include <cerrno>

namespace Platform {

namespace {

constexpr QSize UsualPreview(306, 172); // until the preview says its size

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

// On a sharper screen, another mode may be the best one.
void PipeWireCapture::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    if (m_stream && bestMode(m_serial) != m_mode) {
        m_opening.reopen();
    }
}

std::optional<CameraMode> PipeWireCapture::bestMode(const QString& serial) const
{
    return m_connection.cameras().modesOf(serial).forPreview(m_outputSize.isEmpty() ? UsualPreview
                                                                                    : m_outputSize);
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

void PipeWireCapture::linkFailed(const QString& serial, quint32 readerId, const ServerError& error)
{
    if (m_stream && serial == m_serial && readerId == m_stream->nodeId()) {
        // What another program agreed on with the camera binds all who read from it.
        streamBlocked(error, error.state());
    }
}

void PipeWireCapture::cameraFailed(const QString& serial, const ServerError& error)
{
    if (m_stream && serial == m_serial) {
        cameraEnded(error);
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

void PipeWireCapture::streamEnded(const ServerError& error)
{
    if (error.isEmpty()) {
        // If another program has the camera for itself, the session manager ends a new stream.
        const QString reader = m_didRun ? QString() : m_connection.programReading(m_serial);
        m_opening.streamEnded(
            reader.isEmpty() ? std::nullopt : std::make_optional(DeviceState::Busy), reader);
    } else if (error.number == ENOENT) {
        // The session manager found no camera that it may give us; the list knows more.
        streamBlocked(error, DeviceState::Ready);
    } else {
        cameraEnded(error);
    }
}

void PipeWireCapture::cameraEnded(const ServerError& error)
{
    qCInfo(Log::camera, "%s", qUtf8Printable(error.text));
    m_opening.streamEnded(error.state(), userOf(m_serial, error.state()));
}

// Blames the program that reads from the camera, if there is one.
void PipeWireCapture::streamBlocked(const ServerError& error, DeviceState otherwise)
{
    qCInfo(Log::camera, "%s", qUtf8Printable(error.text));
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
        if (m_converter.hasGivenUp()) {
            m_opening.framesUnreadable(m_converter.problem());
        }
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
        m_opening.setReason(DeviceState::Unreadable); // the server would say nothing at all
        return false;
    }
    m_serial = serial;
    m_didRun = false;
    m_mode = bestMode(serial);
    m_slot->setModes(m_opening.generation(), m_connection.cameras().modesOf(serial).text());
    m_stream = std::make_unique<PipeWireStream>(m_connection.context(), serial, m_mode,
                                                *static_cast<PipeWireStream::Listener*>(this));
    m_opening.startBegan();
    const ServerError error = m_connection.errorOf(serial);
    if (!error.isEmpty()) {
        setReason(error);
    }
    return true;
}

// If the error is older than our connection, the server gives no number.
void PipeWireCapture::setReason(const ServerError& error)
{
    const bool mayBeBusy = error.number == 0 || error.number == EBUSY;
    const QString program = mayBeBusy ? m_connection.programUsing(m_serial) : QString();
    m_opening.setReason(program.isEmpty() ? error.state() : DeviceState::Busy, program);
}

} // namespace Platform
