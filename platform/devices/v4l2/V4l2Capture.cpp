// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/v4l2/V4l2Capture.h"

#include "platform/backend/EndingThreads.h"
#include "platform/backend/Log.h"

namespace Platform {

namespace {

// With the same place as PipeWire finds: a remembered camera is known in both systems.
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

V4l2Capture::V4l2Capture(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
                         std::shared_ptr<CameraFeed::Listener> listener,
                         std::shared_ptr<EndingThreads> ending)
    : m_parts(parts),
      m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_ending(std::move(ending)),
      m_opening(*this, {/*retriesHungStart*/ false, /*keepsReason*/ false}, m_slot, m_listener),
      m_devices(parts.makeDevices())
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_opening.wake(); });
    m_announceTimer.setInterval(CameraBurstWindow);
    m_announceTimer.setSingleShot(true);
    QObject::connect(&m_announceTimer, &QTimer::timeout, &m_announceTimer, [this] { announce(); });
    m_devices->start(*this);
    announce();
}

V4l2Capture::~V4l2Capture()
{
    close();
}

void V4l2Capture::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    if (m_stream) {
        m_stream->setOutputSize(pixels);
    }
}

void V4l2Capture::deviceFound(const VideoDevices::Properties& properties)
{
    const CameraNode node = nodeOf(properties);
    const auto known = m_numbers.emplace(node.serial, m_lastNumber + 1);
    m_lastNumber += known.second ? 1 : 0;
    if (m_cameras.add(known.first->second, node)) {
        m_announceTimer.start();
    }
}

void V4l2Capture::deviceGone(const QString& path)
{
    const auto known = m_numbers.find(path);
    if (known == m_numbers.end()) {
        return;
    }
    if (m_cameras.remove(known->second)) {
        m_announceTimer.start();
    }
    m_numbers.erase(known);
    m_opening.forgetCameraIfReplaced();
}

void V4l2Capture::streamOpens()
{
    m_opening.startBegan();
}

void V4l2Capture::streamRuns()
{
    m_opening.streamRuns();
}

void V4l2Capture::firstFrameArrived()
{
    m_opening.frameArrived();
}

void V4l2Capture::framesUnreadable(const QString& problem)
{
    m_opening.framesUnreadable(problem);
}

void V4l2Capture::streamEnded(DeviceState state, const QString& error, const QString& program)
{
    qCInfo(Log::camera, "%s", qUtf8Printable(error));
    m_opening.streamEnded(state, program);
}

std::optional<QString> V4l2Capture::serialOf(const QString& id) const
{
    return m_cameras.serialOf(id);
}

bool V4l2Capture::openStream(const QString& path)
{
    m_mailbox.emplace();
    m_stream = std::make_unique<V4l2Stream>(m_parts, path, m_opening.generation(), m_slot,
                                            m_listener, m_mailbox->sender(),
                                            *static_cast<V4l2Stream::Listener*>(this));
    m_stream->setOutputSize(m_outputSize);
    m_stream->start();
    return true;
}

void V4l2Capture::closeStream()
{
    m_mailbox.reset();
    if (m_stream) {
        m_stream->requestInterruption();
        m_ending->take(std::move(m_stream));
    }
}

void V4l2Capture::announce()
{
    m_announceTimer.stop();
    m_listener->listArrived(m_cameras.devices(), m_cameras.preferredId(), CameraServer::Answers);
    m_opening.openIfPresent();
}

} // namespace Platform
