// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/ProcessResources.h"

#include <algorithm>
#include <vector>
#include <windows.h>
// After windows.h, which they need.
#include <psapi.h>
#include <tlhelp32.h>
#include <winternl.h>

namespace {

constexpr auto ListIsLonger = NTSTATUS(0xC0000004);

} // namespace

int ProcessResources::openHandles()
{
    // Not GetProcessHandleCount(): Wine answers it with zero.
    std::vector<SYSTEM_HANDLE_INFORMATION> list(1024);
    NTSTATUS status = 0;
    do {
        list.resize(list.size() * 2);
        status = NtQuerySystemInformation(
            SystemHandleInformation, list.data(),
            static_cast<ULONG>(list.size() * sizeof(SYSTEM_HANDLE_INFORMATION)), nullptr);
    } while (status == ListIsLonger);
    if (status != 0) {
        return -1;
    }
    const SYSTEM_HANDLE_ENTRY* entries = list.front().Handle;
    return static_cast<int>(
        std::count_if(entries, entries + list.front().Count, [](const SYSTEM_HANDLE_ENTRY& entry) {
            return entry.OwnerPid == GetCurrentProcessId();
        }));
}

int ProcessResources::threads()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    }
    CloseHandle(snapshot);
    return count;
}

std::size_t ProcessResources::privateBytes()
{
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                         sizeof(counters));
    // Either of them is zero on some system; where both are told, they are the same.
    return std::max(counters.PrivateUsage, counters.PagefileUsage);
}

std::size_t ProcessResources::heapBytes()
{
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    heaps.resize(std::min<std::size_t>(
        heaps.size(), GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data())));
    std::size_t bytes = 0;
    for (const HANDLE heap : heaps) {
        HeapLock(heap);
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heap, &entry)) {
            bytes += entry.wFlags & PROCESS_HEAP_ENTRY_BUSY ? entry.cbData : 0;
        }
        HeapUnlock(heap);
    }
    return bytes;
}
