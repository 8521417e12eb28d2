// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>
#include <memory>
#include <mutex>
#include <vector>

namespace Platform {

// Threads that were asked to end, kept until they have. Thread-safe.
class EndingThreads
{
public:
    EndingThreads() = default;
    ~EndingThreads();
    EndingThreads(const EndingThreads&) = delete;
    EndingThreads& operator=(const EndingThreads&) = delete;

    void take(std::unique_ptr<QThread> thread);
    void wait(); // for each a second at most

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<QThread>> m_threads;
};

} // namespace Platform
