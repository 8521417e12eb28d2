// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/EndingThreads.h"

#include "platform/backend/Log.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr unsigned long EndTimeoutMs = 1000;

// Qt ends the program if a running QThread is destroyed, so it is never freed.
void abandon(std::unique_ptr<QThread> thread)
{
    static_cast<void>(thread.release());
}

} // namespace

EndingThreads::EndingThreads() = default;

EndingThreads::~EndingThreads()
{
    for (std::unique_ptr<QThread>& thread : m_threads) {
        if (!thread->isFinished()) {
            abandon(std::move(thread));
        }
    }
}

void EndingThreads::take(std::unique_ptr<QThread> thread)
{
    const std::scoped_lock lock(m_mutex);
    m_threads.erase(std::remove_if(m_threads.begin(), m_threads.end(),
                                   [](const auto& present) { return present->isFinished(); }),
                    m_threads.end());
    m_threads.push_back(std::move(thread));
}

void EndingThreads::wait()
{
    for (;;) {
        std::unique_ptr<QThread> thread;
        { // not while waiting: an ending thread may hand over others
            const std::scoped_lock lock(m_mutex);
            if (m_threads.empty()) {
                return;
            }
            thread = std::move(m_threads.back());
            m_threads.pop_back();
        }
        if (!thread->wait(EndTimeoutMs)) {
            qCWarning(Log::devices, "The thread \"%s\" doesn't end; it is left behind",
                      qUtf8Printable(thread->objectName()));
            abandon(std::move(thread));
        }
    }
}

} // namespace Platform
