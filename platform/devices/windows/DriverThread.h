// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace Platform {

// Threads for what may hang in a driver or in a service of Windows: nobody joins them, and there
// are never more than MaxCount. They have COM (multithreaded apartment), and keep the library
// loaded that their code is in. Thread-safe.
namespace DriverThread {

constexpr int MaxCount = 16;

enum class Priority {
    Usual,
    RealTime, // the class "Pro Audio" of the multimedia scheduler, if the system has it
};

// The job owns all that it uses. False if there are too many threads, or the system refuses one;
// then the job isn't run.
bool run(Priority priority, std::function<void()> job);
int count();

} // namespace DriverThread
} // namespace Platform
