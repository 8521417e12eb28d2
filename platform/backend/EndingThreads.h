// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QThread>
#include <memory>
#include <mutex>
#include <vector>

namespace Platform {

// The way to let go of a thread that may hang: ask it to end, hand it over, go on. It is kept until
// it has ended. Thread-safe.
class CLASSROOMBACKEND_EXPORT EndingThreads
{
public:
    EndingThreads();
    ~EndingThreads(); // doesn't wait; abandons what still runs
    EndingThreads(const EndingThreads&) = delete;
    EndingThreads& operator=(const EndingThreads&) = delete;

    void take(std::unique_ptr<QThread> thread);
    void wait(); // at most a second for each, then abandons it

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<QThread>> m_threads;
};

} // namespace Platform
