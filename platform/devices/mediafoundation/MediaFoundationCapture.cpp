// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/mediafoundation/MediaFoundationCapture.h"

#include "platform/devices/camera/ThreadedFeed.h"
#include "platform/devices/mediafoundation/CameraSources.h"
#include "platform/devices/windows/DriverThread.h"

#include <set>

namespace Platform {

namespace {

CameraNode nodeOf(const CameraSourceThread::Camera& camera)
{
    CameraNode node;
    node.serial = camera.link;
    node.name = camera.link;
    node.place = CameraSources::placeOf(camera.link);
    node.description = camera.name;
    return node;
}

} // namespace

MediaFoundationCapture::MediaFoundationCapture(const MediaFoundationLoader& load,
                                               std::shared_ptr<FrameSlot> slot,
                                               std::shared_ptr<CameraFeed::Listener> listener)
    : m_slot(std::move(slot)),
      m_listener(std::move(listener)),
      m_opening(*this, {/*retriesHungStart*/ false, /*keepsReason*/ false}, m_slot, m_listener),
      m_sources(std::make_shared<CameraSourceThread>(
          load,
          [this, sender = m_mailbox.sender()](const CameraSourceThread::List& list) {
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

MediaFoundationCapture::~MediaFoundationCapture()
{
    close();
    m_sources->stop();
}

void MediaFoundationCapture::setOutputSize(const QSize& pixels)
{
    m_outputSize = pixels;
    if (m_stream) {
        m_stream->setOutputSize(pixels);
    }
}

std::optional<QString> MediaFoundationCapture::serialOf(const QString& id) const
{
    return m_cameras.serialOf(id);
}

bool MediaFoundationCapture::openStream(const QString& link)
{
    m_streamMailbox.emplace();
    const MediaFoundationStream::Order order{*m_functions, link,       m_opening.generation(),
                                             m_slot,       m_listener, m_streamMailbox->sender(),
                                             &m_opening};
    m_stream = std::make_shared<MediaFoundationStream>(order, m_lastStream.lock());
    m_stream->setOutputSize(m_outputSize);
    if (DriverThread::run(DriverThread::Priority::Usual, [stream = m_stream] { stream->run(); })) {
        m_lastStream = m_stream;
    } else {
        m_opening.streamEnded(DeviceState::Hung); // like those that have the threads
    }
    return true;
}

void MediaFoundationCapture::closeStream()
{
    m_streamMailbox.reset();
    if (m_stream) {
        m_stream->stop();
        m_stream.reset();
    }
}

void MediaFoundationCapture::takeList(const CameraSourceThread::List& list)
{
    m_functions = list.functions;
    const bool isServerChanged = m_server != list.server;
    m_server = list.server;
    if (update(list.cameras) || isServerChanged) {
        m_opening.forgetCameraIfReplaced();
        m_listener->listArrived(m_cameras.devices(), m_cameras.preferredId(), list.server);
    }
    m_opening.openIfPresent();
}

bool MediaFoundationCapture::update(const std::vector<CameraSourceThread::Camera>& cameras)
{
    CameraList listed;
    std::set<QString> links;
    for (const CameraSourceThread::Camera& camera : cameras) {
        if (links.insert(camera.link).second) {
            const auto number = static_cast<int>(links.size());
            CameraNode node = nodeOf(camera);
            node.priority = -number; // other programs take Windows' first one, too
            listed.add(static_cast<quint32>(number), node);
        }
    }
    const bool isChanged = !(listed.devices() == m_cameras.devices());
    m_cameras = listed;
    return isChanged;
}

FeedMaker mediaFoundationFeedMaker(const MediaFoundationLoader& load)
{
    const auto makeCapture = [load](const auto& slot, const auto& listener,
                                    const auto& /*ending*/) {
        return std::make_unique<MediaFoundationCapture>(load, slot, listener);
    };
    return threadedFeedMaker(QStringLiteral("windows cameras"), makeCapture);
}

} // namespace Platform
