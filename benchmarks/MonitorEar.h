// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

// Listens to a device on a thread of its own and says when a sound began, however busy the thread
// that asks is. A sound counts from when its first sample got here: a few milliseconds late, the
// same for everybody.
class MonitorEar
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr float Threshold = 0.01F; // what is louder is a sound

    explicit MonitorEar(const QString& device);
    ~MonitorEar();

    // Forgets what it heard; the next sound counts once it has been quiet for a while.
    void arm();
    bool isArmed() const; // it has been quiet
    std::optional<Clock::time_point> onset() const;

private:
    void listen();

    int m_pipe = -1;
    int m_process = -1;
    mutable std::mutex m_mutex;
    bool m_isWaitingForQuiet = true;
    std::size_t m_quietSamples = 0;
    std::optional<Clock::time_point> m_onset;
    std::thread m_thread;
};

inline double millisecondsBetween(MonitorEar::Clock::time_point from,
                                  MonitorEar::Clock::time_point to)
{
    return std::chrono::duration<double, std::milli>(to - from).count();
}
