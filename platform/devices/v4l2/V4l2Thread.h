// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/v4l2/V4l2Parts.h"

#include <QThread>
#include <functional>
#include <memory>

namespace Platform {

class V4l2Capture;

// The thread of a V4l2Capture: the list, and the watch over the streams. Created on the GUI thread;
// must have ended before it is destroyed.
class V4l2Thread final : public QThread
{
    Q_OBJECT
    Q_DISABLE_COPY(V4l2Thread)

public:
    V4l2Thread(const V4l2Parts& parts, std::shared_ptr<FrameSlot> slot,
               std::unique_ptr<CameraFeed::Listener> listener,
               std::shared_ptr<EndingThreads> ending);
    ~V4l2Thread() override;

    void post(std::function<void(V4l2Capture&)> job); // thread-safe; in order

protected:
    void run() override;

private:
    const V4l2Parts m_parts;
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<CameraFeed::Listener> m_listener;
    std::shared_ptr<EndingThreads> m_ending;
    QObject m_receiver;
    V4l2Capture* m_capture = nullptr; // on the thread itself only
};

} // namespace Platform
