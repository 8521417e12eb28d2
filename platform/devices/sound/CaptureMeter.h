// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/LevelMeter.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Platform {

class MicrophoneAnalysis;

// Measures the sound of one microphone from its opening to its closing: the level, whether sound
// was heard, whether samples keep coming, and the figures for the report. The caller passes the
// time. Sound thread only.
class CaptureMeter
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::size_t Channels = 2;
    // Stall timeout: without samples for this long, the level drops to zero.
    static constexpr std::chrono::milliseconds StallTimeout{150};
    // How often watch() is to be called.
    static constexpr std::chrono::milliseconds WatchInterval{50};

    struct Events
    {
        std::function<void(double)> levelMeasured;
        std::function<void()> soundHeard;          // once
        std::function<void(bool)> deliveryChanged; // samples come, or they have stalled
    };

    CaptureMeter(unsigned rate, std::shared_ptr<MicrophoneAnalysis> analysis, Events events,
                 Clock::time_point now);
    ~CaptureMeter();
    CaptureMeter(const CaptureMeter&) = delete;
    CaptureMeter& operator=(const CaptureMeter&) = delete;

    // Interleaved samples, and the same sound in one channel.
    void add(const float* samples, const std::vector<float>& mono, Clock::time_point now);
    void watch(Clock::time_point now);

    static void mixToMono(const float* samples, std::size_t frames, std::vector<float>& mono);

private:
    void resetMeters();
    void publish(double level, Clock::time_point now);
    void setDelivering(bool delivers);

    unsigned m_rate;
    std::shared_ptr<MicrophoneAnalysis> m_analysis;
    Events m_events;
    std::vector<LevelMeter> m_meters; // one per channel
    Clock::time_point m_lastSample;
    Clock::time_point m_lastLevelTime;
    double m_lastLevel = -1.0; // none was told yet
    bool m_isHeard = false;
    std::optional<bool> m_delivers; // no value: not known yet
};

} // namespace Platform
