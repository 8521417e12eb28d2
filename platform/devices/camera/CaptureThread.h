// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/camera/CameraCapture.h"

#include <QThread>

namespace Platform {

// The thread of a CameraCapture: the list, and the watch over the streams. Created on the GUI
// thread; must have ended before it is destroyed.
class CaptureThread final : public QThread
{
    Q_OBJECT
    Q_DISABLE_COPY(CaptureThread)

public:
    CaptureThread(CaptureMaker makeCapture, std::shared_ptr<FrameSlot> slot,
                  std::unique_ptr<CameraFeed::Listener> listener,
                  std::shared_ptr<EndingThreads> ending);
    ~CaptureThread() override;

    void post(std::function<void(CameraCapture&)> job); // thread-safe; in order

protected:
    void run() override;

private:
    const CaptureMaker m_makeCapture;
    std::shared_ptr<FrameSlot> m_slot;
    std::unique_ptr<CameraFeed::Listener> m_listener;
    std::shared_ptr<EndingThreads> m_ending;
    QObject m_receiver;
    CameraCapture* m_capture = nullptr; // on the thread itself only
};

} // namespace Platform
