// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ThreadCount.h"

#include <QLibrary>
#include <QString>

#include <windows.h>
// Must follow windows.h.
#include <tlhelp32.h>

namespace {

// Windows has these since Windows 10, so they are looked up as the engine does.
QString nameOf(DWORD id)
{
    using GetDescription = HRESULT(WINAPI*)(HANDLE, PWSTR*);
    static const auto getDescription = reinterpret_cast<GetDescription>(
        QLibrary::resolve(QStringLiteral("kernel32"), "GetThreadDescription"));
    const HANDLE thread = OpenThread(THREAD_QUERY_LIMITED_INFORMATION, FALSE, id);
    QString name;
    PWSTR text = nullptr;
    if (getDescription && SUCCEEDED(getDescription(thread, &text))) {
        name = QString::fromWCharArray(text);
        LocalFree(text);
    }
    CloseHandle(thread);
    return name;
}

} // namespace

int threadCount(const char* name)
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry = {};
    entry.dwSize = sizeof(entry);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry)) {
        const bool isOurs = entry.th32OwnerProcessID == GetCurrentProcessId();
        count += isOurs && nameOf(entry.th32ThreadID) == QLatin1String(name) ? 1 : 0;
    }
    CloseHandle(snapshot);
    return count;
}
