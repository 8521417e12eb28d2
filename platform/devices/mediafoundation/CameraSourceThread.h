// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/DeviceInfo.h"
#include "platform/devices/camera/CameraFeed.h"
#include "platform/devices/mediafoundation/MediaFoundation.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

namespace Platform {

// The thread that asks Windows for its cameras, each time when it is told to. It may hang in that;
// nobody waits for it.
class CameraSourceThread
{
public:
    struct Camera
    {
        QString link;
        QString name;
    };
    struct List
    {
        CameraServer server = CameraServer::Answers;
        std::vector<Camera> cameras;                // of a server that answers
        std::optional<MediaFoundation> functions{}; // none if Windows hasn't got them
    };
    using Publish = std::function<void(const List&)>; // on the thread, after each look

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
