// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseTimer.h"

#include <pulse/mainloop-api.h>
#include <pulse/timeval.h>
#include <utility>

namespace Platform {

PulseTimer::PulseTimer(pa_mainloop_api* api, std::function<void()> expired)
    : m_api(api), m_expired(std::move(expired))
{
}

PulseTimer::~PulseTimer()
{
    stop();
}

void PulseTimer::startOnce(unsigned milliseconds)
{
    stop();
    timeval when{};
    pa_timeval_add(pa_gettimeofday(&when), milliseconds * PA_USEC_PER_MSEC);
    const auto onExpired = [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) {
        auto* timer = static_cast<PulseTimer*>(self);
        timer->stop();
        timer->m_expired();
    };
    m_event = m_api->time_new(m_api, &when, onExpired, this);
}

void PulseTimer::stop()
{
    if (m_event) {
        m_api->time_free(std::exchange(m_event, nullptr));
    }
}

} // namespace Platform
