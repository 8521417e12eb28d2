// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/DriftResampler.h"

#include <algorithm>
#include <samplerate.h>

namespace Platform {

namespace {

// The shortest of the library's good filters: listening to oneself bears no delay.
constexpr int Quality = SRC_SINC_FASTEST;
// Room for samples that the filter held back in the call before.
constexpr std::size_t HeldBack = 2 * DriftResampler::DelaySamples;
// After so many zeros the filter holds nothing else, whatever its ratio.
constexpr std::size_t FilterLength = 10 * DriftResampler::DelaySamples;

} // namespace

void DriftResampler::Deleter::operator()(SRC_STATE_tag* state) const
{
    src_delete(state);
}

DriftResampler::DriftResampler() : m_state(src_new(Quality, 1, nullptr))
{
    std::vector<float> nothing;
    process(std::vector<float>(DelaySamples), nothing);
}

DriftResampler::~DriftResampler() = default;

void DriftResampler::setDeviation(double deviation)
{
    m_deviation = std::clamp(deviation, -MaxDeviation, MaxDeviation);
    src_set_ratio(m_state.get(), 1.0 / (1.0 + m_deviation));
}

void DriftResampler::process(const std::vector<float>& samples, std::vector<float>& result)
{
    if (isAllSilent(samples)) {
        extendSilence(samples.size(), result);
        return;
    }
    const std::size_t before = result.size();
    const auto longest = static_cast<double>(samples.size()) / (1.0 - MaxDeviation);
    result.resize(before + static_cast<std::size_t>(longest) + HeldBack);
    SRC_DATA data = {};
    data.data_in = samples.data();
    data.data_out = result.data() + before;
    data.input_frames = static_cast<long>(samples.size());
    data.output_frames = static_cast<long>(result.size() - before);
    data.src_ratio = 1.0 / (1.0 + m_deviation);
    src_process(m_state.get(), &data);
    result.resize(before + static_cast<std::size_t>(data.output_frames_gen));
}

bool DriftResampler::isAllSilent(const std::vector<float>& samples)
{
    const auto lastSound =
        std::find_if(samples.rbegin(), samples.rend(), [](float sample) { return sample != 0.0F; });
    if (lastSound != samples.rend()) {
        m_silentSamples = static_cast<std::size_t>(lastSound - samples.rbegin());
        return false;
    }
    const bool isFilterSilent = m_silentSamples >= FilterLength;
    m_silentSamples = isFilterSilent ? m_silentSamples : m_silentSamples + samples.size();
    return isFilterSilent;
}

// Fractions of a sample are kept, as the filter does.
void DriftResampler::extendSilence(std::size_t count, std::vector<float>& result)
{
    m_owedSamples += static_cast<double>(count) / (1.0 + m_deviation);
    const auto whole = static_cast<std::size_t>(m_owedSamples);
    m_owedSamples -= static_cast<double>(whole);
    result.resize(result.size() + whole, 0.0F);
}

} // namespace Platform
