// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

namespace Platform {

class CameraSession;
class PipeWireThread;

// The cameras of a PipeWire server. What waits for the server is done by a session on the camera
// thread; this side only posts to it.
class PipeWireFeed final : public CameraFeed
{
public:
    PipeWireFeed(std::shared_ptr<PipeWireThread> thread, std::shared_ptr<FrameSlot> slot,
                 std::unique_ptr<Listener> listener);
    ~PipeWireFeed() override;
    PipeWireFeed(const PipeWireFeed&) = delete;
    PipeWireFeed& operator=(const PipeWireFeed&) = delete;

    void open(int generation, const QString& id) override;
    void close() override;
    void setOutputSize(const QSize& pixels) override;

private:
    void post(std::function<void(CameraSession&)> job);

    std::shared_ptr<PipeWireThread> m_thread;
    std::shared_ptr<std::unique_ptr<CameraSession>> m_session; // its content: camera thread only
};

} // namespace Platform
