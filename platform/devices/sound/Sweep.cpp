// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/Sweep.h"

#include "platform/devices/sound/FourierPlan.h"
#include "platform/devices/sound/SoundMath.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace Platform {

namespace {

using Bins = std::vector<kiss_fft_cpx>;

// A window of the recording that is quieter than this has no sweep: rounding makes as much.
constexpr double QuietestDb = -100.0;

// Both directions of one transform. The way there and back multiplies by the size.
class Transform
{
public:
    explicit Transform(std::size_t least)
        : m_size(kiss_fftr_next_fast_size_real(static_cast<int>(least))),
          m_forward(kiss_fftr_alloc(m_size, 0, nullptr, nullptr)),
          m_back(kiss_fftr_alloc(m_size, 1, nullptr, nullptr))
    {
    }

    double frequency(std::size_t bin, double rate) const
    {
        return static_cast<double>(bin) * rate / m_size;
    }

    Bins spectrumOf(std::vector<float> samples) const
    {
        samples.resize(static_cast<std::size_t>(m_size));
        Bins result(static_cast<std::size_t>(m_size) / 2 + 1);
        kiss_fftr(m_forward.get(), samples.data(), result.data());
        return result;
    }

    std::vector<double> samplesOf(const Bins& spectrum) const
    {
        std::vector<float> scaled(static_cast<std::size_t>(m_size));
        kiss_fftri(m_back.get(), spectrum.data(), scaled.data());
        std::vector<double> result(scaled.size());
        std::transform(scaled.begin(), scaled.end(), result.begin(),
                       [this](float sample) { return static_cast<double>(sample) / m_size; });
        return result;
    }

private:
    int m_size;
    FourierPlan m_forward;
    FourierPlan m_back;
};

kiss_fft_cpx productWithConjugate(kiss_fft_cpx a, kiss_fft_cpx b)
{
    return {a.r * b.r + a.i * b.i, a.i * b.r - a.r * b.i};
}

// What is not in the band of the sweep can't be the sweep.
void keepBand(Bins& spectrum, const Transform& transform, double rate)
{
    for (std::size_t bin = 0; bin < spectrum.size(); ++bin) {
        const double frequency = transform.frequency(bin, rate);
        if (frequency < Sweep::LowestHz || frequency > Sweep::HighestHz) {
            spectrum[bin] = {0, 0};
        }
    }
}

double energyOf(const std::vector<double>& samples)
{
    return std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0);
}

} // namespace

std::vector<float> Sweep::samples(unsigned rate)
{
    const double octaves = std::log(HighestHz / LowestHz);
    const double amplitude = amplitudeOfDecibels(PeakDb);
    std::vector<float> result(static_cast<std::size_t>(Seconds * rate));
    for (std::size_t i = 0; i < result.size(); ++i) {
        const double second = static_cast<double>(i) / rate;
        const double phase =
            2 * Pi * LowestHz * Seconds / octaves * (std::exp(second / Seconds * octaves) - 1);
        const double toEnd = std::min(second, Seconds - second) / FadeSeconds;
        const double fade = 0.5 - 0.5 * std::cos(Pi * std::min(toEnd, 1.0));
        result[i] = static_cast<float>(amplitude * fade * std::sin(phase));
    }
    return result;
}

// The normalised cross-correlation: sum of x(n + t) s(n), divided by the root of the product of
// the energies of s and of the part of x that it is laid on.
std::optional<Sweep::Match> Sweep::bestMatch(const std::vector<float>& recording, unsigned rate)
{
    const std::vector<float> sweep = samples(rate);
    if (recording.size() < sweep.size()) {
        return std::nullopt;
    }
    const Transform transform(recording.size() + sweep.size());
    Bins heard = transform.spectrumOf(recording);
    Bins sought = transform.spectrumOf(sweep);
    keepBand(heard, transform, rate);
    keepBand(sought, transform, rate);
    const std::vector<double> sound = transform.samplesOf(heard);
    const double sweepEnergy = energyOf(transform.samplesOf(sought));
    std::transform(heard.begin(), heard.end(), sought.begin(), heard.begin(), productWithConjugate);
    const std::vector<double> products = transform.samplesOf(heard);

    const double least =
        std::pow(amplitudeOfDecibels(QuietestDb), 2) * static_cast<double>(sweep.size());
    double energy =
        std::inner_product(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(sweep.size()),
                           sound.begin(), 0.0);
    std::optional<Match> best;
    for (std::size_t i = 0; i + sweep.size() <= recording.size(); ++i) {
        const double correlation =
            energy < least ? 0 : std::abs(products[i]) / std::sqrt(energy * sweepEnergy);
        if (correlation > (best ? best->correlation : 0)) {
            const double gain = std::abs(products[i]) / sweepEnergy;
            best = Match{correlation, static_cast<double>(i) / rate,
                         PeakDb + decibelsOfAmplitude(gain)};
        }
        energy += std::pow(sound[i + sweep.size()], 2) - std::pow(sound[i], 2);
    }
    return best;
}

} // namespace Platform
