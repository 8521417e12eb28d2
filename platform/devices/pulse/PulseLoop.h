// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <vector>

struct pa_io_event;
struct pa_mainloop_api;
struct pa_threaded_mainloop;

namespace Platform {

// The thread that talks to the sound server. Others hand it jobs and never take its lock, so that
// none of them waits for what it is doing.
class PulseLoop
{
public:
    using Job = std::function<void()>;

    PulseLoop();
    ~PulseLoop();
    PulseLoop(const PulseLoop&) = delete;
    PulseLoop& operator=(const PulseLoop&) = delete;

    void start();
    // Returns when the thread is gone. Nothing that runs there waits for a server, so a frozen one
    // doesn't hold this up. Afterwards the caller may touch what lived there.
    void stop();
    void post(Job job); // any thread; the jobs run in order
    pa_mainloop_api* api() const;

private:
    void runJobs();

    pa_threaded_mainloop* m_loop;
    int m_wakeUp; // an eventfd
    pa_io_event* m_wakeUpEvent;
    bool m_isRunning = false;
    std::mutex m_mutex;
    std::vector<Job> m_jobs; // guarded by m_mutex
};

} // namespace Platform
