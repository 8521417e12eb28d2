// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/System.h"

#include <array>
#include <cstdlib>
#include <io.h>
#include <memory>
#include <windows.h>
// Must follow windows.h.
#include <shellapi.h>

namespace {

HANDLE handleOf(std::FILE* file)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the system gives it
    return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(file)));
}

// Loads libraries only from the folders of the program and of the system. Anybody may have put one
// of the same name into the working folder or the path.
void searchLibrariesSafely()
{
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    SetDllDirectoryW(L"");
    SetSearchPathMode(BASE_SEARCH_PATH_ENABLE_SAFE_SEARCHMODE | BASE_SEARCH_PATH_PERMANENT);
}

// A console program that is started from the desktop gets an empty console window.
void closeOwnConsole()
{
    std::array<DWORD, 2> users = {};
    if (GetConsoleProcessList(users.data(), static_cast<DWORD>(users.size())) == 1) {
        FreeConsole();
    }
}

} // namespace

void System::prepareProcess()
{
    searchLibrariesSafely();
    closeOwnConsole();
}

QStringList System::arguments(int, char**)
{
    // The arguments of main() lack all characters that aren't in the code page.
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> values(
        CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        texts << QString::fromWCharArray(values.get()[i]);
    }
    return texts;
}

bool System::isTerminal(std::FILE* file)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(file), &mode) != 0;
}

void System::write(std::FILE* file, const QString& text)
{
    if (isTerminal(file)) {
        DWORD written = 0;
        WriteConsoleW(handleOf(file), text.utf16(), static_cast<DWORD>(text.size()), &written,
                      nullptr);
        return;
    }
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
    std::fflush(file);
}

QString System::problemOfLimits()
{
    return {};
}

// There, a folder decides for its files, and those of users are closed to others.
bool System::isOpenToOthers(const QString& /*path*/)
{
    return false;
}

bool System::hasBeenStopped()
{
    return false;
}

// Not by _Exit(): it ends the other threads, then tells every library of the end, and waits for
// ever for a lock that one of those threads held. Some may hang in a driver.
void System::leave(ExitCode code)
{
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
    std::abort(); // never reached
}
