// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include "platform/backend/Log.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <process.h>
#include <utility>
#include <windows.h>

namespace Platform {

namespace {

using Job = std::function<void()>;

unsigned __stdcall runJob(void* argument)
{
    const std::unique_ptr<Job> job(static_cast<Job*>(argument));
    (*job)();
    return 0;
}

} // namespace

// Not std::thread: that of MinGW-w64 10 loses one of a hundred threads that are detached while
// others end, without an error, and its job is never run.
bool DetachedThread::run(Job job)
{
    auto owned = std::make_unique<Job>(std::move(job));
    const auto thread =
        reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, runJob, owned.get(), 0, nullptr));
    if (!thread) {
        qCWarning(Log::devices, "No thread can be made: %s", std::strerror(errno));
        return false;
    }
    static_cast<void>(owned.release()); // the thread has it
    CloseHandle(thread);
    return true;
}

} // namespace Platform
