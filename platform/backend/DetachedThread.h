// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <chrono>
#include <functional>

namespace Platform {

// Threads that are left behind if they hang in a disk or a name server: they hold up neither the
// dialog nor the end of the program. Such a job must own all that it uses. Thread-safe.
namespace DetachedThread {

// False if the system refuses another thread; then the job isn't run.
CLASSROOMBACKEND_EXPORT bool run(std::function<void()> job);

// Waits for the job, but no longer than the limit. False if it is left behind.
CLASSROOMBACKEND_EXPORT bool runWithin(std::chrono::milliseconds limit, std::function<void()> job);

} // namespace DetachedThread
} // namespace Platform
