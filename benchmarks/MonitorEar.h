// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

// Records a device on its own thread and notes when a sound begins, however busy the calling thread
// is. The noted time is when the first sample arrives: a few milliseconds late, the same for all
// that are compared.
class MonitorEar
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr float Threshold = 0.01F; // louder samples are sound

    explicit MonitorEar(const QString& device);
    ~MonitorEar();

    // Forgets the last sound. The next one counts after some silence.
    void arm();
    bool isArmed() const; // the silence has passed
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
