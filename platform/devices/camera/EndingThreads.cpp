// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/EndingThreads.h"

#include "platform/devices/camera/CameraLog.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr unsigned long EndTimeoutMs = 1000;

} // namespace

// What still runs can't be destroyed.
EndingThreads::~EndingThreads()
{
    for (std::unique_ptr<QThread>& thread : m_threads) {
        if (!thread->isFinished()) {
            static_cast<void>(thread.release());
        }
    }
}

void EndingThreads::take(std::unique_ptr<QThread> thread)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_threads.erase(std::remove_if(m_threads.begin(), m_threads.end(),
                                   [](const auto& present) { return present->isFinished(); }),
                    m_threads.end());
    m_threads.push_back(std::move(thread));
}

// A thread may hand over others while it ends.
void EndingThreads::wait()
{
    for (;;) {
        std::unique_ptr<QThread> thread;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_threads.empty()) {
                return;
            }
            thread = std::move(m_threads.back());
            m_threads.pop_back();
        }
        if (!thread->wait(EndTimeoutMs)) {
            qCWarning(CameraLog, "The thread \"%s\" doesn't end; it is left behind",
                      qUtf8Printable(thread->objectName()));
            static_cast<void>(thread.release());
        }
    }
}

} // namespace Platform
