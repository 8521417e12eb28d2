// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include "platform/backend/Log.h"

#include <memory>
#include <utility>
#include <windows.h>

namespace Platform {

namespace {

using Job = std::function<void()>;

DWORD WINAPI runJob(void* argument)
{
    const std::unique_ptr<Job> job(static_cast<Job*>(argument));
    (*job)();
    return 0;
}

} // namespace

// Not std::thread: that of MinGW-w64 10 loses a few of a thousand threads that are detached while
// others end, without an error, and its job is never run.
bool DetachedThread::run(Job job)
{
    auto owned = std::make_unique<Job>(std::move(job));
    const HANDLE thread = CreateThread(nullptr, 0, &runJob, owned.get(), 0, nullptr);
    if (!thread) {
        qCWarning(Log::devices, "No thread can be made: error %lu", GetLastError());
        return false;
    }
    static_cast<void>(owned.release()); // the thread has it
    CloseHandle(thread);
    return true;
}

} // namespace Platform
