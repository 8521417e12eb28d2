// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"

namespace Platform {

struct V4l2Parts;
class V4l2Thread;

// The kernel's cameras, by V4L2. All work is done on its own thread.
class V4l2Feed final : public CameraFeed
{
public:
    V4l2Feed(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
             std::unique_ptr<Listener> listener, std::shared_ptr<EndingThreads> ending);
    ~V4l2Feed() override;
    V4l2Feed(const V4l2Feed&) = delete;
    V4l2Feed& operator=(const V4l2Feed&) = delete;

    void open(int generation, const QString& id) override;
    void close() override;
    void setOutputSize(const QSize& pixels) override;

private:
    std::shared_ptr<EndingThreads> m_ending;
    std::unique_ptr<V4l2Thread> m_thread;
};

} // namespace Platform
