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

// The thread that talks to the sound server. Other threads post jobs and never take the lock of its
// main loop, so they never wait for it.
class PulseLoop
{
public:
    using Job = std::function<void()>;

    PulseLoop();
    ~PulseLoop();
    PulseLoop(const PulseLoop&) = delete;
    PulseLoop& operator=(const PulseLoop&) = delete;

    void start();
    // Waits for the end of the thread. This is short even if the server is frozen, because no job
    // waits for the server. Afterwards the caller may use the objects of the thread.
    void stop();
    void post(Job job); // from any thread; jobs run in order
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
