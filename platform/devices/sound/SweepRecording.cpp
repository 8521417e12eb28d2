// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SweepRecording.h"

#include "platform/devices/sound/Sweep.h"

#include <algorithm>
#include <cmath>

namespace Platform {

SweepRecording::SweepRecording(unsigned rate) : m_rate(rate)
{
}

void SweepRecording::add(const std::vector<float>& mono, Clock::time_point now)
{
    if (static_cast<double>(m_samples.size()) < LongestSeconds * m_rate) {
        m_samples.insert(m_samples.end(), mono.begin(), mono.end());
        m_pieces.push_back({m_samples.size(), now});
    }
}

LoopOutcome SweepRecording::outcome(Clock::time_point playedAt) const
{
    // Nothing can be heard before it was played.
    std::size_t from = 0;
    for (const Piece& piece : m_pieces) {
        if (piece.arrival > playedAt) {
            break;
        }
        from = piece.end;
    }
    const std::vector<float> heard(m_samples.begin() + static_cast<std::ptrdiff_t>(from),
                                   m_samples.end());
    const std::optional<Sweep::Match> match = Sweep::bestMatch(heard, m_rate);
    if (!match || match->correlation < Sweep::LeastCorrelation) {
        return {LoopOutcome::Result::NotHeard, 0, 0, {}};
    }
    const auto first = from + static_cast<std::size_t>(std::lround(match->atSecond * m_rate));
    const std::chrono::duration<double, std::milli> delay = arrivalOf(first) - playedAt;
    return {LoopOutcome::Result::Heard, std::max(0.0, delay.count()), match->peakDb, {}};
}

// A piece arrived when its last sample was there; the others came earlier by their place in it.
SweepRecording::Clock::time_point SweepRecording::arrivalOf(std::size_t sample) const
{
    const auto piece = std::find_if(m_pieces.begin(), m_pieces.end(),
                                    [sample](const Piece& each) { return each.end > sample; });
    const std::chrono::duration<double> beforeEnd(static_cast<double>(piece->end - sample) /
                                                  m_rate);
    return piece->arrival - std::chrono::duration_cast<Clock::duration>(beforeEnd);
}

} // namespace Platform
