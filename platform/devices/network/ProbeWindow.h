// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/NetworkProbe.h"

#include <chrono>
#include <deque>
#include <optional>

namespace Platform {

// The figures of a sliding window of probes. It knows neither sockets nor clocks: times are given
// to it, counted from any fixed point, and must not run backwards.
class ProbeWindow
{
public:
    using Time = std::chrono::microseconds;

    static constexpr Time Length = std::chrono::seconds(5);
    // A probe without an answer by then is lost, and an answer after it is none.
    static constexpr Time Deadline = std::chrono::seconds(2);

    int addProbe(Time sentAt); // its number
    // False where the answer doesn't count: an unknown probe, a second answer, or too late.
    bool addAnswer(int number, Time arrivedAt);
    // Of the probes sent within Length before now. The delay is in whole milliseconds, cut off, so
    // that it reaches a limit exactly when the way does.
    NetworkFigures figures(Time now);

private:
    struct Probe
    {
        int number;
        Time sentAt;
        std::optional<Time> roundTrip;
    };

    void addJitter(Time roundTrip);

    std::deque<Probe> m_probes;
    int m_nextNumber = 0;
    std::optional<Time> m_lastRoundTrip;
    double m_jitterUs = 0.0;
};

} // namespace Platform
