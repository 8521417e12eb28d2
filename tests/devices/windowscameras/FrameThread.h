// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/windowscameras/CameraStage.h"

#include <functional>
#include <thread>

namespace TestSupport {

// Sends the frames of a staged camera at their rate, as long as it is plugged in and not silent.
class FrameThread
{
public:
    // On the thread. The number counts from 0.
    using Deliver = std::function<void(const QByteArray& frame, int number)>;
    using AtEnd = std::function<void()>;

    FrameThread(std::shared_ptr<CameraStage> stage, std::shared_ptr<StagedCamera> camera);
    ~FrameThread() { stop(); }
    FrameThread(const FrameThread&) = delete;
    FrameThread& operator=(const FrameThread&) = delete;

    bool isRunning() const { return m_thread.joinable(); }
    // The stage may be locked. Nothing is called after the end.
    void start(const StagedMode& mode, Deliver deliver, AtEnd atEnd);
    void stop(); // waits for it

private:
    void run(const StagedMode& mode, const Deliver& deliver, const AtEnd& atEnd);

    const std::shared_ptr<CameraStage> m_stage;
    const std::shared_ptr<StagedCamera> m_camera;
    std::thread m_thread;
    std::atomic<bool> m_isEnding{false}; // changed with the stage locked
};

} // namespace TestSupport
