// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// A DLL that leaves a file beside itself when it is loaded. Copies of it bear other DLLs' names.
#include <cwchar>
#include <iterator>
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE self, DWORD reason, void*)
{
    constexpr DWORD Room = 1024;
    constexpr wchar_t Ending[] = L".loaded";
    wchar_t path[Room + std::size(Ending)] = {};
    if (reason == DLL_PROCESS_ATTACH && GetModuleFileNameW(self, path, Room) < Room) {
        CloseHandle(CreateFileW(std::wcscat(path, Ending), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    return TRUE;
}
