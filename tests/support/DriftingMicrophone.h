// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/MicrophoneFeed.h"
#include "tests/support/SoundServer.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

namespace TestSupport {

// A microphone with a clock of its own, which goes too fast or too slowly. It hears a steady tone
// with short loud bursts in it.
class DriftingMicrophone
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr double BurstSpacingSeconds = 0.2;
    static constexpr double ToneHz = 440.0;

    // A speed of 1 is right.
    DriftingMicrophone(SoundServer& server, const QString& name, double speed);
    ~DriftingMicrophone();
    DriftingMicrophone(const DriftingMicrophone&) = delete;
    DriftingMicrophone& operator=(const DriftingMicrophone&) = delete;

    bool isPlugged() const { return m_feed->isPlugged(); }
    void hear(int bursts); // once, beginning now
    bool hasHeardAll() const { return m_hasHeardAll; }
    std::vector<Clock::time_point> burstTimes() const;

private:
    void run();
    Clock::time_point timeOf(std::size_t sample) const;

    std::unique_ptr<MicrophoneFeed> m_feed;
    double m_samplesPerSecond; // by a clock that is right
    std::vector<float> m_sound;
    std::vector<std::size_t> m_bursts; // where they begin
    Clock::time_point m_start;
    std::atomic<bool> m_hasHeardAll{false};
    std::atomic<bool> m_isOver{false};
    std::thread m_thread;
};

} // namespace TestSupport
