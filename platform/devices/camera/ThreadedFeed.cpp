// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/ThreadedFeed.h"

#include "platform/backend/EndingThreads.h"
#include "platform/devices/camera/CaptureThread.h"

namespace Platform {

ThreadedFeed::ThreadedFeed(const QString& threadName, CaptureMaker makeCapture,
                           std::shared_ptr<FrameSlot> slot, std::unique_ptr<Listener> listener,
                           std::shared_ptr<EndingThreads> ending)
    : m_ending(std::move(ending)),
      m_thread(std::make_unique<CaptureThread>(std::move(makeCapture), std::move(slot),
                                               std::move(listener), m_ending))
{
    m_thread->setObjectName(threadName);
    m_thread->start();
}

ThreadedFeed::~ThreadedFeed()
{
    m_thread->quit();
    m_ending->take(std::move(m_thread));
}

void ThreadedFeed::open(int generation, const QString& id)
{
    m_thread->post([generation, id](CameraCapture& capture) { capture.open(generation, id); });
}

void ThreadedFeed::close()
{
    m_thread->post([](CameraCapture& capture) { capture.close(); });
}

void ThreadedFeed::setOutputSize(const QSize& pixels)
{
    m_thread->post([pixels](CameraCapture& capture) { capture.setOutputSize(pixels); });
}

FeedMaker threadedFeedMaker(const QString& threadName, CaptureMaker makeCapture)
{
    return [threadName, makeCapture = std::move(makeCapture)](const auto& slot, auto listener,
                                                              const auto& ending) {
        return std::make_unique<ThreadedFeed>(threadName, makeCapture, slot, std::move(listener),
                                              ending);
    };
}

} // namespace Platform
