// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftResampler.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <speex/speex_resampler.h>

namespace Platform {

namespace {

// The shortest filter that keeps voices whole up to 16 kHz: listening to oneself bears no delay.
constexpr int Quality = 1;
constexpr std::uint32_t RatioParts = 1000000;
// Only the ratio counts here.
constexpr std::uint32_t AnyRate = 48000;

} // namespace

void DriftResampler::Deleter::operator()(SpeexResamplerState_* state) const
{
    speex_resampler_destroy(state);
}

DriftResampler::DriftResampler()
    : m_state(
          speex_resampler_init_frac(1, RatioParts, RatioParts, AnyRate, AnyRate, Quality, nullptr))
{
}

DriftResampler::~DriftResampler() = default;

void DriftResampler::setDeviation(double deviation)
{
    m_deviation = std::clamp(deviation, -MaxDeviation, MaxDeviation);
    const auto parts = static_cast<std::uint32_t>(std::lround(RatioParts * (1.0 + m_deviation)));
    speex_resampler_set_rate_frac(m_state.get(), parts, RatioParts, AnyRate, AnyRate);
}

void DriftResampler::process(const std::vector<float>& samples, std::vector<float>& result)
{
    const std::size_t before = result.size();
    const auto longest = static_cast<double>(samples.size()) / (1.0 - MaxDeviation);
    result.resize(before + static_cast<std::size_t>(longest) + 2);
    auto taken = static_cast<std::uint32_t>(samples.size());
    auto made = static_cast<std::uint32_t>(result.size() - before);
    speex_resampler_process_float(m_state.get(), 0, samples.data(), &taken, result.data() + before,
                                  &made);
    result.resize(before + made);
}

} // namespace Platform
