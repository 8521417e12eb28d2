// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pulse/PulseLoop.h"

#include <cstdint>
#include <pulse/thread-mainloop.h>
#include <sched.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace Platform {

namespace {

// If this thread runs late, listening to oneself tears. Most systems refuse this priority to users;
// then the thread does without. Its child processes don't inherit it.
void askForPriority()
{
    sched_param parameters = {};
    parameters.sched_priority = sched_get_priority_min(SCHED_RR);
    ::sched_setscheduler(0, SCHED_RR | SCHED_RESET_ON_FORK, &parameters);
}

} // namespace

PulseLoop::PulseLoop()
    : m_loop(pa_threaded_mainloop_new()), m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    pa_threaded_mainloop_set_name(m_loop, "sound");
    m_wakeUpEvent = api()->io_new(
        api(), m_wakeUp, PA_IO_EVENT_INPUT,
        [](pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t, void* self) {
            static_cast<PulseLoop*>(self)->runJobs();
        },
        this);
}

PulseLoop::~PulseLoop()
{
    stop();
    api()->io_free(m_wakeUpEvent);
    pa_threaded_mainloop_free(m_loop);
    ::close(m_wakeUp);
}

void PulseLoop::start()
{
    post([] { askForPriority(); });
    m_isRunning = pa_threaded_mainloop_start(m_loop) == 0;
}

void PulseLoop::stop()
{
    if (std::exchange(m_isRunning, false)) {
        pa_threaded_mainloop_stop(m_loop);
    }
}

void PulseLoop::post(Job job)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    const std::uint64_t one = 1;
    // This fails only if the counter is full, and then the thread is already being woken up.
    [[maybe_unused]] const ssize_t written = ::write(m_wakeUp, &one, sizeof one);
}

pa_mainloop_api* PulseLoop::api() const
{
    return pa_threaded_mainloop_get_api(m_loop);
}

void PulseLoop::runJobs()
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t taken = ::read(m_wakeUp, &count, sizeof count);
    std::vector<Job> jobs;
    {
        const std::scoped_lock lock(m_mutex);
        jobs.swap(m_jobs);
    }
    for (const Job& job : jobs) {
        job();
    }
}

} // namespace Platform
