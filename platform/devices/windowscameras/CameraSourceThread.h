// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/windowscameras/WindowsCameraSources.h"

#include <condition_variable>
#include <functional>
#include <mutex>

namespace Platform {

// The thread that asks Windows for its cameras, each time when it is told to. It may hang in that;
// nobody waits for it.
class CameraSourceThread
{
public:
    // On the thread, after each look.
    using Publish = std::function<void(const WindowsCameraSources::List&)>;

    CameraSourceThread(MediaFoundationLoader load, Publish publish);

    // On a thread with COM, until stop(). Whoever runs it owns it.
    void run();

    // From any thread.
    void lookAgain();
    void stop();

private:
    bool awaitTurn(); // false at the end

    const MediaFoundationLoader m_load;
    const Publish m_publish;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isDue = true; // guarded by m_mutex, as is the next one
    bool m_isStopped = false;
};

} // namespace Platform
