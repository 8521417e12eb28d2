// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// Loads the library, runs the check in it and unloads it, over and over, as a client does that
// knows nothing of Qt. Usage: load_test [PICTURE_FOLDER]
#include "tests/support/ProcessResources.h"
#include "tests/windows/LoadTestClient.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <windows.h>

namespace {

constexpr int Runs = 20;
constexpr int SettledRun = 5; // by then Qt's caches are filled
constexpr int AllAnswered = 3;
// A lock makes its event when two threads first want it at once, so a handle more is no leak; one
// from every run is.
constexpr int MaxMoreHandles = (Runs - SettledRun) / 3;
constexpr std::size_t BytesInKb = 1024;
constexpr std::size_t MaxGrowth = 1024 * BytesInKb;
// Qt's cache of pixmaps keeps the names of those that were cleared: 6 KiB a run.
constexpr std::size_t MaxHeapGrowth = (Runs - SettledRun) * 9 * BytesInKb;

using Instance = void*();
using ShowEnvCheck = void(void* agent, void* parent);
using Release = void();

[[noreturn]] void fail(const char* text)
{
    std::printf("%s (error %lu)\n", text, GetLastError());
    std::fflush(stdout);
    std::_Exit(1);
}

template <typename Function>
Function* resolved(HMODULE library, const char* name)
{
    const FARPROC address = GetProcAddress(library, name);
    if (!address) {
        fail(name);
    }
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(address));
}

struct Held
{
    int handles = ProcessResources::openHandles();
    int threads = ProcessResources::threads();
    std::size_t bytes = ProcessResources::privateBytes();
    std::size_t heapBytes = ProcessResources::heapBytes();
};

void runOnce(HMODULE client, const wchar_t* pictureFolder, bool hurries)
{
    const HMODULE library = LoadLibraryW(L"EnvCheck.dll");
    if (!library) {
        fail("EnvCheck.dll can't be loaded");
    }
    resolved<ClientWalkThrough>(client, "clientWalkThrough")(pictureFolder, hurries);
    void* agent = resolved<Instance>(library, "_ZN13EnvCheckAgent8instanceEv")();
    resolved<ShowEnvCheck>(library, "_ZN13EnvCheckAgent12showEnvCheckEP7QWidget")(agent, nullptr);
    resolved<Release>(library, "_ZN13EnvCheckAgent7releaseEv")();
    const int outcome = resolved<ClientOutcome>(client, "clientOutcome")();
    if (outcome != AllAnswered) {
        std::printf("The run reported %d, or left something behind\n", outcome);
        fail("A run failed");
    }
    if (!FreeLibrary(library)) {
        fail("EnvCheck.dll can't be unloaded");
    }
    if (GetModuleHandleW(L"EnvCheck.dll")) {
        fail("EnvCheck.dll is still there");
    }
}

} // namespace

int wmain(int argc, wchar_t* argv[])
{
    const HMODULE client = LoadLibraryW(L"LoadTestClient.dll");
    if (!client) {
        fail("LoadTestClient.dll can't be loaded");
    }
    if (!resolved<ClientStart>(client, "clientStart")()) {
        fail("There are no texts in translations/");
    }
    Held settled;
    for (int run = 1; run <= Runs; ++run) {
        const bool isFirst = run == 1; // as a person sees it
        runOnce(client, argc > 1 && isFirst ? argv[1] : nullptr, !isFirst);
        const Held held;
        std::printf("run %2d: %d handles, %d threads, %zu KiB, %zu KiB of them in heaps\n", run,
                    held.handles, held.threads, held.bytes / BytesInKb, held.heapBytes / BytesInKb);
        std::fflush(stdout);
        if (run == SettledRun) {
            settled = held;
        }
    }
    const Held last;
    if (last.handles > settled.handles + MaxMoreHandles || last.threads > settled.threads ||
        last.bytes > settled.bytes + MaxGrowth ||
        last.heapBytes > settled.heapBytes + MaxHeapGrowth) {
        fail("Something grows");
    }
    if (last.handles <= 0 || last.threads <= 0 || last.bytes == 0 || last.heapBytes == 0) {
        fail("The system does not tell what the process holds");
    }
    resolved<ClientEnd>(client, "clientEnd")();
    std::puts("The library was loaded, run and unloaded, and nothing grew.");
    return 0;
}
