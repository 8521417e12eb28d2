// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/PipeWireThread.h"

#include "platform/devices/pipewire/PipeWireConnection.h"

#include <pipewire/pipewire.h>

namespace Platform {

PipeWireThread::PipeWireThread()
{
    setObjectName(QStringLiteral("cameras"));
}

PipeWireThread::~PipeWireThread() = default;

// Not by pw_loop_invoke: only one other thread may call that, and the stream's data thread does
// already.
void PipeWireThread::post(Job job)
{
    const std::scoped_lock lock(m_mutex);
    m_jobs.push_back(std::move(job));
    if (m_wake) {
        m_wake();
    }
}

void PipeWireThread::requestEnd()
{
    post([](PipeWireConnection& connection) { connection.quit(); });
}

void PipeWireThread::run()
{
    pw_init(nullptr, nullptr);
    pw_main_loop* const mainLoop = pw_main_loop_new(nullptr);
    if (mainLoop) {
        pw_loop* const loop = pw_main_loop_get_loop(mainLoop);
        PipeWireConnection connection(mainLoop);
        struct Context
        {
            PipeWireThread& thread;
            PipeWireConnection& connection;
        } context{*this, connection};
        const auto onWoken = [](void* data, uint64_t) {
            const auto* woken = static_cast<Context*>(data);
            woken->thread.runJobs(woken->connection);
        };
        spa_source* const event = pw_loop_add_event(loop, onWoken, &context);
        {
            const std::scoped_lock lock(m_mutex);
            m_wake = [loop, event] { pw_loop_signal_event(loop, event); };
            m_wake();
        }
        pw_main_loop_run(mainLoop);
        {
            const std::scoped_lock lock(m_mutex);
            m_wake = nullptr;
        }
        runJobs(connection);
        pw_loop_destroy_source(loop, event);
    }
    if (mainLoop) {
        pw_main_loop_destroy(mainLoop);
    }
    pw_deinit();
}

void PipeWireThread::runJobs(PipeWireConnection& connection)
{
    std::deque<Job> jobs;
    {
        const std::scoped_lock lock(m_mutex);
        jobs.swap(m_jobs);
    }
    for (Job& job : jobs) {
        job(connection);
        job = nullptr; // destroys what it holds on this thread
    }
}

} // namespace Platform
