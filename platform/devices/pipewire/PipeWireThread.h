// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>
#include <deque>
#include <functional>
#include <mutex>

struct pw_loop;
struct pw_main_loop;
struct spa_source;

namespace Platform {

class PipeWireConnection;

// The only thread that talks to the camera server, so that no other waits for it. Jobs run in the
// order they were posted. Created, asked to end and destroyed on the GUI thread; must have ended
// before it is destroyed.
class PipeWireThread final : public QThread
{
    Q_OBJECT
    Q_DISABLE_COPY(PipeWireThread)

public:
    using Job = std::function<void(PipeWireConnection&)>;

    PipeWireThread();
    ~PipeWireThread() override;

    void post(Job job); // thread-safe, never waits for a job
    void requestEnd();  // after the jobs posted before

protected:
    void run() override;

private:
    void runJobs(PipeWireConnection& connection);

    std::mutex m_mutex; // guards the next two; never held while a job runs
    std::deque<Job> m_jobs;
    std::function<void()> m_wake;
};

} // namespace Platform
