// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireFeed.h"

#include "platform/backend/EndingThreads.h"
#include "platform/devices/pipewire/PipeWireCapture.h"
#include "platform/devices/pipewire/PipeWireThread.h"

namespace Platform {

namespace {

// Nobody waits for it: its last user asks it to end and goes on.
std::shared_ptr<PipeWireThread> startThread(const std::shared_ptr<EndingThreads>& ending)
{
    std::shared_ptr<PipeWireThread> result(new PipeWireThread, [ending](PipeWireThread* thread) {
        thread->requestEnd();
        ending->take(std::unique_ptr<QThread>(thread));
    });
    result->start();
    return result;
}

} // namespace

PipeWireFeed::PipeWireFeed(std::shared_ptr<PipeWireThread> thread,
                           const std::shared_ptr<FrameSlot>& slot,
                           std::unique_ptr<Listener> listener)
    : m_thread(std::move(thread)), m_capture(std::make_shared<std::unique_ptr<PipeWireCapture>>())
{
    auto passed = std::make_shared<std::unique_ptr<Listener>>(std::move(listener));
    m_thread->post([capture = m_capture, slot, passed](PipeWireConnection& connection) {
        *capture = std::make_unique<PipeWireCapture>(connection, slot, std::move(*passed));
    });
}

PipeWireFeed::~PipeWireFeed()
{
    m_thread->post([capture = m_capture](PipeWireConnection&) { capture->reset(); });
}

void PipeWireFeed::open(int generation, const QString& id)
{
    post([generation, id](PipeWireCapture& capture) { capture.open(generation, id); });
}

void PipeWireFeed::close()
{
    post([](PipeWireCapture& capture) { capture.close(); });
}

void PipeWireFeed::setOutputSize(const QSize& pixels)
{
    post([pixels](PipeWireCapture& capture) { capture.setOutputSize(pixels); });
}

void PipeWireFeed::post(std::function<void(PipeWireCapture&)> job)
{
    m_thread->post([capture = m_capture, job = std::move(job)](PipeWireConnection&) {
        if (*capture) {
            job(**capture);
        }
    });
}

FeedMaker pipeWireFeedMaker()
{
    const auto current = std::make_shared<std::weak_ptr<PipeWireThread>>();
    return [current](const auto& slot, auto listener, const auto& ending) {
        std::shared_ptr<PipeWireThread> thread = current->lock();
        if (!thread) {
            thread = startThread(ending);
            *current = thread;
        }
        return std::make_unique<PipeWireFeed>(thread, slot, std::move(listener));
    };
}

} // namespace Platform
