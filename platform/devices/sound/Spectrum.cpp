// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/Spectrum.h"

#include "platform/devices/sound/FourierPlan.h"

#include <algorithm>

namespace Platform {

struct Spectrum::Transform
{
    explicit Transform(std::size_t sampleCount)
        : plan(kiss_fftr_alloc(static_cast<int>(sampleCount), 0, nullptr, nullptr)),
          result(sampleCount / 2 + 1)
    {
    }

    FourierPlan plan;
    std::vector<kiss_fft_cpx> result;
};

Spectrum::Spectrum(std::size_t sampleCount)
    : m_transform(std::make_unique<Transform>(sampleCount)), m_powers(sampleCount / 2 + 1)
{
}

Spectrum::~Spectrum() = default;

void Spectrum::measure(const std::vector<float>& samples)
{
    std::vector<kiss_fft_cpx>& result = m_transform->result;
    kiss_fftr(m_transform->plan.get(), samples.data(), result.data());
    const auto count = static_cast<double>(samples.size());
    std::transform(result.begin(), result.end(), m_powers.begin(), [count](kiss_fft_cpx value) {
        const auto real = static_cast<double>(value.r);
        const auto imaginary = static_cast<double>(value.i);
        return 2.0 * (real * real + imaginary * imaginary) / (count * count);
    });
}

} // namespace Platform
