// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

namespace Platform {

class PipeWireCapture;
class PipeWireThread;

// The cameras of a PipeWire server. Whatever waits for the server is done on the camera thread;
// this side only posts to it.
class PipeWireFeed final : public CameraFeed
{
public:
    PipeWireFeed(std::shared_ptr<PipeWireThread> thread, const std::shared_ptr<FrameSlot>& slot,
                 std::unique_ptr<Listener> listener);
    ~PipeWireFeed() override;
    PipeWireFeed(const PipeWireFeed&) = delete;
    PipeWireFeed& operator=(const PipeWireFeed&) = delete;

    void open(int generation, const QString& id) override;
    void close() override;
    void setOutputSize(const QSize& pixels) override;

private:
    void post(std::function<void(PipeWireCapture&)> job);

    std::shared_ptr<PipeWireThread> m_thread;
    std::shared_ptr<std::unique_ptr<PipeWireCapture>> m_capture; // its content: camera thread only
};

// Its feeds share a thread and a connection, which last as long as there is a feed.
FeedMaker pipeWireFeedMaker();

} // namespace Platform
