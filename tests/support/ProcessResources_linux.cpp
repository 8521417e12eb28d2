// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/ProcessResources.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>

namespace {

int entries(const char* folder)
{
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

} // namespace

int ProcessResources::openHandles()
{
    return entries("/proc/self/fd");
}

int ProcessResources::threads()
{
    return entries("/proc/self/task");
}

std::size_t ProcessResources::privateBytes()
{
    constexpr std::size_t BytesInKb = 1024;
    std::ifstream file("/proc/self/smaps_rollup");
    std::string word;
    std::size_t total = 0;
    while (file >> word) {
        if (word == "Private_Clean:" || word == "Private_Dirty:") {
            std::size_t kb = 0;
            file >> kb;
            total += kb * BytesInKb;
        }
    }
    return total;
}

std::size_t ProcessResources::heapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
