// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/LoopTimer.h"

#include <algorithm>
#include <cerrno>
#include <pipewire/loop.h>

namespace Platform {

namespace {

timespec toTimespec(std::chrono::milliseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    return {seconds.count(), std::chrono::nanoseconds(duration - seconds).count()};
}

} // namespace

LoopTimer::LoopTimer(pw_loop* loop, std::function<void()> expired)
    : m_loop(loop), m_expired(std::move(expired))
{
    const auto onExpired = [](void* data, uint64_t) {
        auto* self = static_cast<LoopTimer*>(data);
        self->m_isActive = self->m_isRepeating;
        self->m_expired();
    };
    m_source = pw_loop_add_timer(m_loop, onExpired, this);
}

LoopTimer::~LoopTimer()
{
    pw_loop_destroy_source(m_loop, m_source);
}

void LoopTimer::startOnce(std::chrono::milliseconds delay)
{
    set(std::max(delay, std::chrono::milliseconds(1)), {});
}

void LoopTimer::startRepeating(std::chrono::milliseconds period)
{
    set(period, period);
}

void LoopTimer::stop()
{
    set({}, {});
}

void LoopTimer::set(std::chrono::milliseconds delay, std::chrono::milliseconds period)
{
    timespec value = toTimespec(delay);
    timespec interval = toTimespec(period);
    m_isActive = delay.count() > 0;
    m_isRepeating = period.count() > 0;
    pw_loop_update_timer(m_loop, m_source, &value, &interval, false);
}

} // namespace Platform
