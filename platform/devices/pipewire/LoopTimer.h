// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

struct pw_loop;
struct spa_source;

namespace Platform {

// A timer of a PipeWire loop. On the loop's thread only.
class LoopTimer
{
public:
    LoopTimer(pw_loop* loop, std::function<void()> expired);
    ~LoopTimer();
    LoopTimer(const LoopTimer&) = delete;
    LoopTimer& operator=(const LoopTimer&) = delete;

    void startOnce(std::chrono::milliseconds delay);
    void startRepeating(std::chrono::milliseconds period);
    void stop();
    bool isActive() const { return m_isActive; }

private:
    void set(std::chrono::milliseconds delay, std::chrono::milliseconds period);

    pw_loop* m_loop;
    std::function<void()> m_expired;
    spa_source* m_source;
    bool m_isActive = false;
    bool m_isRepeating = false;
};

} // namespace Platform
