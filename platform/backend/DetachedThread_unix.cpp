// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include "platform/backend/Log.h"

#include <system_error>
#include <thread>
#include <utility>

namespace Platform {

bool DetachedThread::run(std::function<void()> job)
{
    try {
        std::thread(std::move(job)).detach();
        return true;
    } catch (const std::system_error& error) {
        qCWarning(Log::devices, "No thread can be made: %s", error.what());
        return false;
    }
}

} // namespace Platform
