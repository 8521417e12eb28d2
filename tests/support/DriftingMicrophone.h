// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/SoundServer.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <thread>
#include <vector>

namespace TestSupport {

// A microphone whose clock is too fast or too slow. It records a steady tone with short loud
// bursts.
class DriftingMicrophone
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr double BurstSpacingSeconds = 0.2;
    static constexpr double ToneHz = 440.0;

    // speed: 1 is exact, 1.01 is 1 % too fast.
    DriftingMicrophone(SoundServer& server, const QString& name, double speed);
    ~DriftingMicrophone();
    DriftingMicrophone(const DriftingMicrophone&) = delete;
    DriftingMicrophone& operator=(const DriftingMicrophone&) = delete;

    bool isPlugged() const;
    void record(int bursts); // once, beginning now
    bool hasRecordedAll() const { return m_hasRecordedAll; }
    std::vector<Clock::time_point> burstTimes() const;

    // A device of a server, whose samples come from the test when the test wants it.
    class Feed
    {
    public:
        static constexpr std::size_t PieceSize = 256; // samples, of one channel

        virtual ~Feed() = default;
        virtual bool isPlugged() const = 0;
        // PieceSize samples. Always from the same thread.
        virtual void write(const float* piece) = 0;
    };

private:
    void run();
    Clock::time_point timeOf(std::size_t sample) const;

    std::unique_ptr<Feed> m_feed;
    double m_samplesPerSecond; // of an exact clock
    std::vector<float> m_sound;
    std::vector<std::size_t> m_bursts; // positions in m_sound
    Clock::time_point m_start;
    std::atomic<bool> m_hasRecordedAll{false};
    std::atomic<bool> m_isStopping{false};
    std::thread m_thread;
};

} // namespace TestSupport
