// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

struct pa_mainloop_api;
struct pa_time_event;

namespace Platform {

// A timer of libpulse's loop. It needs no context, which may be missing. On the loop's thread only,
// except for the constructor.
class PulseTimer
{
public:
    PulseTimer(pa_mainloop_api* api, std::function<void()> expired);
    ~PulseTimer();
    PulseTimer(const PulseTimer&) = delete;
    PulseTimer& operator=(const PulseTimer&) = delete;

    void startOnce(unsigned milliseconds);
    void stop();
    bool isActive() const { return m_event != nullptr; }

private:
    pa_mainloop_api* m_api;
    std::function<void()> m_expired;
    pa_time_event* m_event = nullptr;
};

} // namespace Platform
