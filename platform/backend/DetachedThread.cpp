// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include "platform/backend/Log.h"

#include <future>
#include <memory>
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

bool DetachedThread::runWithin(std::chrono::milliseconds limit, std::function<void()> job)
{
    const auto end = std::make_shared<std::promise<void>>();
    const std::future<void> hasEnded = end->get_future();
    return run([end, job = std::move(job)] {
               job();
               end->set_value();
           }) &&
           hasEnded.wait_for(limit) == std::future_status::ready;
}

} // namespace Platform
