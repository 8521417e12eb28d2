// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/windows/DriverThread.h"

#include "platform/backend/Log.h"

#include <QLibrary>
#include <memory>
#include <mutex>
#include <utility>

#include <windows.h>
// Must follow windows.h.
#include <objbase.h>

namespace Platform {

namespace {

struct Count
{
    std::mutex mutex;
    int value = 0;
};

// Never freed: a thread that hangs may end after everything else.
Count& threads()
{
    static auto* count = new Count;
    return *count;
}

struct Start
{
    DriverThread::Priority priority;
    std::function<void()> job;
};

// The library is part of Windows since Vista, but not of every edition.
class RealTime
{
public:
    RealTime()
    {
        using Set = HANDLE(WINAPI*)(LPCWSTR, LPDWORD);
        static const auto set = reinterpret_cast<Set>(
            QLibrary::resolve(QStringLiteral("avrt"), "AvSetMmThreadCharacteristicsW"));
        DWORD task = 0;
        m_handle = set ? set(L"Pro Audio", &task) : nullptr;
    }

    ~RealTime()
    {
        using Revert = BOOL(WINAPI*)(HANDLE);
        static const auto revert = reinterpret_cast<Revert>(
            QLibrary::resolve(QStringLiteral("avrt"), "AvRevertMmThreadCharacteristics"));
        if (m_handle && revert) {
            revert(m_handle);
        }
    }

    RealTime(const RealTime&) = delete;
    RealTime& operator=(const RealTime&) = delete;

private:
    HANDLE m_handle = nullptr;
};

void work(const Start& start)
{
    const HRESULT hasCom = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    if (start.priority == DriverThread::Priority::RealTime) {
        const RealTime realTime;
        start.job();
    } else {
        start.job();
    }
    if (SUCCEEDED(hasCom)) {
        CoUninitialize();
    }
}

// The library of this code, held until the thread has left it.
HMODULE holdLibrary()
{
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&holdLibrary), &library);
    return library;
}

void endOne()
{
    Count& count = threads();
    const std::scoped_lock lock(count.mutex);
    --count.value;
}

DWORD WINAPI threadMain(void* argument)
{
    const HMODULE library = holdLibrary();
    {
        std::unique_ptr<Start> start(static_cast<Start*>(argument));
        work(*start);
    }
    endOne();
    FreeLibraryAndExitThread(library, 0);
}

} // namespace

bool DriverThread::run(Priority priority, std::function<void()> job)
{
    {
        Count& count = threads();
        const std::scoped_lock lock(count.mutex);
        if (count.value == MaxCount) {
            qCInfo(Log::devices, "%d threads hang in drivers; no other is started", MaxCount);
            return false;
        }
        ++count.value;
    }
    auto start = std::make_unique<Start>(Start{priority, std::move(job)});
    const HANDLE thread = CreateThread(nullptr, 0, &threadMain, start.get(), 0, nullptr);
    if (!thread) {
        endOne();
        qCWarning(Log::devices, "No thread for a driver can be made");
        return false;
    }
    static_cast<void>(start.release()); // the thread has it
    CloseHandle(thread);
    return true;
}

int DriverThread::count()
{
    Count& count = threads();
    const std::scoped_lock lock(count.mutex);
    return count.value;
}

} // namespace Platform
