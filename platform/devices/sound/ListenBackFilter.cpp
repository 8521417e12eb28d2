// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/ListenBackFilter.h"

#include <cmath>

namespace Platform {

namespace {

// How long to wait for silence before dropping excess.
constexpr double WaitForSilenceMs = 400.0;
constexpr float Silence = 0.003F; // -50 dBFS
// Shorter silence may be a wave that crosses zero.
constexpr double SilenceMs = 5.0;

} // namespace

ListenBackFilter::ListenBackFilter(unsigned rate, double reserveMs)
    : m_samplesPerMs(rate / 1000.0), m_limiter(rate), m_drift(reserveMs)
{
}

const std::vector<float>& ListenBackFilter::process(const float* samples, std::size_t count,
                                                    std::optional<double> fillMs)
{
    if (fillMs) {
        m_drift.observe(*fillMs, static_cast<double>(count) / m_samplesPerMs);
        m_resampler.setDeviation(m_drift.deviation());
        planDropping();
    }
    m_kept.clear();
    for (std::size_t i = 0; i < count; ++i) {
        const float sample = m_limiter.pass(samples[i]);
        if (!isDropped(sample)) {
            m_kept.push_back(sample);
        }
    }
    m_output.clear();
    m_resampler.process(m_kept, m_output);
    return m_output;
}

void ListenBackFilter::planDropping()
{
    const auto excess = static_cast<std::size_t>(m_drift.takeExcessMs() * m_samplesPerMs);
    if (excess == 0) {
        return;
    }
    if (m_toDrop == 0) {
        m_waiting = static_cast<std::size_t>(WaitForSilenceMs * m_samplesPerMs);
    }
    // Replaces the former amount: what is not dropped yet was measured again.
    m_toDrop = excess;
}

// Nobody misses silence, so audible sound is dropped only if no silence comes in time.
bool ListenBackFilter::isDropped(float sample)
{
    m_silent = std::abs(sample) > Silence ? 0 : m_silent + 1;
    if (m_toDrop == 0) {
        return false;
    }
    if (m_waiting > 0) {
        --m_waiting;
        if (static_cast<double>(m_silent) < SilenceMs * m_samplesPerMs) {
            return false;
        }
    }
    --m_toDrop;
    return true;
}

} // namespace Platform
