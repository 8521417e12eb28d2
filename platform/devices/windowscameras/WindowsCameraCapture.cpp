// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windowscameras/WindowsCameraCapture.h"

#include "platform/devices/camera/ThreadedFeed.h"
#include "platform/devices/windows/DriverThread.h"

namespace Platform {

namespace {

CameraNode nodeOf(const WindowsCameraSource& camera)
{
    CameraNode node;
    node.serial = camera.link;
    node.name = camera.link;
    node.place = camera.place;
    node.description = camera.name;
    return node;
}

} // namespace

WindowsCameraCapture::WindowsCameraCapture(const MediaFoundationLoader& load,
                                           std::shared_ptr<FrameSlot> slot,
                                           std::shared_ptr<CameraFeed::Listener> listener)
    : m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_opening(*this, {/*retriesHungStart*/ false, /*keepsReason*/ false}, m_slot, m_listener),
      m_sources(std::make_shared<CameraSourceThread>(
          load,
          [this, sender = m_mailbox.sender()](const WindowsCameraSources::List& list) {
              sender.post([this, list] { takeList(list); });
          })),
      m_changes([this] { m_burstTimer.start(); })
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { m_opening.wake(); });
    m_burstTimer.setInterval(CameraBurstWindow);
    m_burstTimer.setSingleShot(true);
    QObject::connect(&m_burstTimer, &QTimer::timeout, &m_burstTimer,
                     [this] { m_sources->lookAgain(); });
    m_lookTimer.setInterval(LookPeriod);
    QObject::connect(&m_lookTimer, &QTimer::timeout, &m_lookTimer,
                     [this] { m_sources->lookAgain(); });
    if (DriverThread::run(DriverThread::Priority::Usual,
                          [sources = m_sources] { sources->run(); })) {
        m_lookTimer.start();
    } else {
        m_listener->serverMissing();
    }
}

WindowsCameraCapture::~WindowsCameraCapture()
{
    close();
    m_sources->stop();
}

void WindowsCameraCapture::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    if (m_stream) {
        m_stream->setOutputSize(pixels);
    }
}

std::optional<QString> WindowsCameraCapture::serialOf(const QString& id) const
{
    return m_cameras.serialOf(id);
}

bool WindowsCameraCapture::openStream(const QString& link)
{
    m_streamMailbox.emplace();
    const WindowsCameraStream::Order order{
        m_makers.at(link), m_opening.generation(),    m_slot,
        m_listener,        m_streamMailbox->sender(), &m_opening};
    m_stream = std::make_shared<WindowsCameraStream>(order, m_lastStream.lock());
    m_stream->setOutputSize(m_outputSize);
    if (DriverThread::run(DriverThread::Priority::Usual, [stream = m_stream] { stream->run(); })) {
        m_lastStream = m_stream;
    } else {
        m_opening.streamEnded(DeviceState::Hung); // like those that have the threads
    }
    return true;
}

void WindowsCameraCapture::closeStream()
{
    m_streamMailbox.reset();
    if (m_stream) {
        m_stream->stop();
        m_stream.reset();
    }
}

void WindowsCameraCapture::takeList(const WindowsCameraSources::List& list)
{
    const bool isServerChanged = m_server != list.server;
    m_server = list.server;
    if (update(list.cameras) || isServerChanged) {
        m_opening.forgetCameraIfReplaced();
        m_listener->listArrived(m_cameras.devices(), m_cameras.preferredId(), list.server);
    }
    m_opening.openIfPresent();
}

bool WindowsCameraCapture::update(const std::vector<WindowsCameraSource>& cameras)
{
    CameraList listed;
    m_makers.clear();
    for (const WindowsCameraSource& camera : cameras) {
        if (m_makers.emplace(camera.link, camera.make).second) {
            const auto number = static_cast<int>(m_makers.size());
            CameraNode node = nodeOf(camera);
            node.priority = -number; // other programs take Windows' first one, too
            listed.add(static_cast<quint32>(number), node);
        }
    }
    const bool isChanged = !(listed.devices() == m_cameras.devices());
    m_cameras = listed;
    return isChanged;
}

FeedMaker windowsCameraFeedMaker(const MediaFoundationLoader& load)
{
    const auto makeCapture = [load](const auto& slot, const auto& listener,
                                    const auto& /*ending*/) {
        return std::make_unique<WindowsCameraCapture>(load, slot, listener);
    };
    return threadedFeedMaker(QStringLiteral("windows cameras"), makeCapture);
}

} // namespace Platform
