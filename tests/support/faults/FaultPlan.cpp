// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "FaultPlan.h"

#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <unistd.h>

int FaultPlan::valueOf(const char* variable)
{
    const char* const text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

void FaultPlan::pause(const char* variable)
{
    const int ms = valueOf(variable);
    if (ms > 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(ms));
    }
}

bool FaultPlan::asksFor(const char* variable)
{
    return std::getenv(variable) != nullptr;
}

bool FaultPlan::isUnder(const char* path)
{
    const char* const folder = std::getenv("FAULT_UNDER");
    return !folder || (path && std::strncmp(path, folder, std::strlen(folder)) == 0);
}

bool FaultPlan::isUnder(int file)
{
    if (!asksFor("FAULT_UNDER")) {
        return true;
    }
    char link[64];
    char path[PATH_MAX];
    std::snprintf(link, sizeof(link), "/proc/self/fd/%d", file);
    const ssize_t size = ::readlink(link, path, sizeof(path) - 1);
    if (size < 0) {
        return false;
    }
    path[size] = 0;
    return isUnder(path);
}

bool CallFault::strikes()
{
    const char* const text = std::getenv(m_variable);
    if (!text) {
        return false;
    }
    const int number = ++m_count;
    const int chosen = std::atoi(text);
    if (std::strchr(text, '*')) {
        return chosen > 0 && number % chosen == 0;
    }
    return number == chosen || (std::strchr(text, '+') && number > chosen);
}
