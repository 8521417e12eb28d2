// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraCapture.h"

namespace Platform {

class CaptureThread;

// A feed that does all of its work on a thread of its own.
class ThreadedFeed final : public CameraFeed
{
public:
    // The name is for logs.
    ThreadedFeed(const QString& threadName, CaptureMaker makeCapture,
                 std::shared_ptr<FrameSlot> slot, std::unique_ptr<Listener> listener,
                 std::shared_ptr<EndingThreads> ending);
    ~ThreadedFeed() override;
    ThreadedFeed(const ThreadedFeed&) = delete;
    ThreadedFeed& operator=(const ThreadedFeed&) = delete;

    void open(int generation, const QString& id) override;
    void close() override;
    void setOutputSize(const QSize& pixels) override;

private:
    std::shared_ptr<EndingThreads> m_ending;
    std::unique_ptr<CaptureThread> m_thread;
};

FeedMaker threadedFeedMaker(const QString& threadName, CaptureMaker makeCapture);

} // namespace Platform
