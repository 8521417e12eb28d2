// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/sound/DriftControl.h"
#include "platform/devices/sound/DriftResampler.h"
#include "platform/devices/sound/FeedbackLimiter.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Platform {

// Makes the sound of the microphone ready for the speaker on which one listens to oneself: limits
// feedback, compensates clock drift, and drops sound if the speaker has fallen behind.
class ListenBackFilter
{
public:
    // reserveMs: what the playback buffer is to hold at least when new sound is added.
    explicit ListenBackFilter(unsigned rate, double reserveMs = DriftControl::FirstTargetMs);

    // fillMs: fill level of the playback buffer, without a value before the first write. The result
    // is to be written to that buffer; it is valid until the next call.
    const std::vector<float>& process(const float* samples, std::size_t count,
                                      std::optional<double> fillMs);
    void noteUnderflow() { m_drift.noteUnderflow(); }

private:
    void planDropping();
    bool isDropped(float sample);

    double m_samplesPerMs;
    FeedbackLimiter m_limiter;
    DriftControl m_drift;
    DriftResampler m_resampler;
    std::size_t m_toDrop = 0;  // samples
    std::size_t m_waiting = 0; // samples during which only silence is dropped
    std::size_t m_silent = 0;  // silent samples in a row, up to the current one
    std::vector<float> m_kept;
    std::vector<float> m_output;
};

} // namespace Platform
