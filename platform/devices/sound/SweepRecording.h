// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/AcousticLoop.h"

#include <chrono>
#include <cstddef>
#include <vector>

namespace Platform {

// What a microphone hears while a sweep is played, with the time at which each piece came. The
// caller passes the time. Sound thread only.
class SweepRecording
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr double LongestSeconds = 6.0; // more isn't kept

    explicit SweepRecording(unsigned rate);

    void add(const std::vector<float>& mono, Clock::time_point now);
    // Looks for a sweep whose first sample was handed over at that time.
    LoopOutcome outcome(Clock::time_point playedAt) const;

private:
    struct Piece
    {
        std::size_t end; // index behind its last sample
        Clock::time_point arrival;
    };

    Clock::time_point arrivalOf(std::size_t sample) const;

    unsigned m_rate;
    std::vector<float> m_samples;
    std::vector<Piece> m_pieces;
};

} // namespace Platform
