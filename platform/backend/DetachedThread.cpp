// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/DetachedThread.h"

#include <future>
#include <memory>
#include <utility>

namespace Platform {

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
