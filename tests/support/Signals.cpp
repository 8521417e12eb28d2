// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/Signals.h"

#include "platform/devices/sound/SoundMath.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace TestSupport {

namespace {

// A quarter of the rate is enough to tell sounds apart, and tolerates half a sample of delay.
constexpr std::size_t Decimation = 4;
constexpr std::ptrdiff_t SearchedDelay = SoundRate / Decimation / 30;
constexpr float OnsetThreshold = 0.01F;
// A short stretch of a sound gives its delay nearly to the sample, for a fraction of the work.
// There are several stretches, because the delay changes at each tear.
constexpr std::ptrdiff_t Stretches = 4;
constexpr std::ptrdiff_t StretchLength = SoundRate / Decimation / 4;
constexpr std::ptrdiff_t DelayError = 2;

std::vector<float> decimated(const std::vector<float>& samples)
{
    std::vector<float> result(samples.size() / Decimation);
    for (std::size_t i = 0; i < result.size(); ++i) {
        for (std::size_t k = 0; k < Decimation; ++k) {
            result[i] += samples[Decimation * i + k] / static_cast<float>(Decimation);
        }
    }
    return result;
}

// The energy of all samples before each sample; at the end, of all samples.
std::vector<double> runningEnergy(const std::vector<float>& samples)
{
    std::vector<double> result(samples.size() + 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto sample = static_cast<double>(samples[i]);
        result[i + 1] = result[i] + sample * sample;
    }
    return result;
}

} // namespace

std::vector<float> silence(double seconds)
{
    return std::vector<float>(static_cast<std::size_t>(seconds * SoundRate));
}

std::vector<float> tone(double seconds, double frequency, double decibels)
{
    std::vector<float> result = silence(seconds);
    const double amplitude = Platform::amplitudeOfDecibels(decibels);
    for (std::size_t i = 0; i < result.size(); ++i) {
        result[i] = static_cast<float>(
            amplitude * std::sin(2.0 * Platform::Pi * frequency * static_cast<double>(i) /
                                 static_cast<double>(SoundRate)));
    }
    return result;
}

double rms(const std::vector<float>& samples, std::size_t from, std::size_t count)
{
    double sum = 0.0;
    const std::size_t end = std::min(samples.size(), from + count);
    for (std::size_t i = from; i < end; ++i) {
        sum += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
    }
    return end > from ? std::sqrt(sum / static_cast<double>(end - from)) : 0.0;
}

double correlation(const std::vector<float>& recording, const std::vector<float>& sound)
{
    const std::vector<float> hay = decimated(recording);
    const std::vector<float> needle = decimated(sound);
    const std::vector<double> hayEnergy = runningEnergy(hay);
    const std::vector<double> needleEnergy = runningEnergy(needle);
    const auto hayEnd = static_cast<std::ptrdiff_t>(hay.size());
    const auto needleEnd = static_cast<std::ptrdiff_t>(needle.size());
    const auto between = [](const std::vector<double>& energy, std::ptrdiff_t from,
                            std::ptrdiff_t to) {
        return energy[static_cast<std::size_t>(to)] - energy[static_cast<std::size_t>(from)];
    };
    const auto alike = [&](std::ptrdiff_t delay, std::ptrdiff_t from, std::ptrdiff_t to) {
        // Before and after the recording there is silence.
        const std::ptrdiff_t begin = std::clamp(-delay, from, to);
        const std::ptrdiff_t end = std::clamp(hayEnd - delay, begin, to);
        if (begin == end) {
            return 0.0;
        }
        const double product = std::inner_product(needle.begin() + begin, needle.begin() + end,
                                                  hay.begin() + (begin + delay), 0.0);
        const double energies = std::sqrt(between(needleEnergy, from, to) *
                                          between(hayEnergy, begin + delay, end + delay));
        return energies > 0.0 ? product / energies : 0.0;
    };
    const auto onset = static_cast<std::ptrdiff_t>(firstAbove(needle, OnsetThreshold));
    const auto offset = static_cast<std::ptrdiff_t>(firstAbove(hay, OnsetThreshold)) - onset;
    double best = 0.0;
    for (std::ptrdiff_t stretch = 0; stretch < Stretches; ++stretch) {
        const std::ptrdiff_t from = onset + stretch * (needleEnd - onset) / Stretches;
        const std::ptrdiff_t to = std::min(from + StretchLength, needleEnd);
        std::ptrdiff_t likeliest = offset;
        double likeness = 0.0;
        for (std::ptrdiff_t delay = offset - SearchedDelay; delay <= offset + SearchedDelay;
             ++delay) {
            const double value = alike(delay, from, to);
            if (value > likeness) {
                likeness = value;
                likeliest = delay;
            }
        }
        for (std::ptrdiff_t delay = likeliest - DelayError; delay <= likeliest + DelayError;
             ++delay) {
            best = std::max(best, alike(delay, 0, needleEnd));
        }
    }
    return best;
}

double loudnessCorrelation(const std::vector<float>& recording, const std::vector<float>& sound)
{
    constexpr std::size_t Moment = SoundRate / 50;
    const auto loudness = [](const std::vector<float>& samples) {
        std::vector<double> result;
        for (std::size_t from = 0; from + Moment <= samples.size(); from += Moment) {
            result.push_back(rms(samples, from, Moment));
        }
        return result;
    };
    const std::vector<double> hay = loudness(recording);
    const std::vector<double> needle = loudness(sound);
    double best = 0.0;
    for (std::size_t from = 0; from + needle.size() <= hay.size(); ++from) {
        const auto first = hay.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = first + static_cast<std::ptrdiff_t>(needle.size());
        const double product = std::inner_product(first, last, needle.begin(), 0.0);
        const double energies =
            std::sqrt(std::inner_product(first, last, first, 0.0) *
                      std::inner_product(needle.begin(), needle.end(), needle.begin(), 0.0));
        best = std::max(best, energies > 0.0 ? product / energies : 0.0);
    }
    return best;
}

std::size_t firstAbove(const std::vector<float>& samples, float threshold, std::size_t from)
{
    for (std::size_t i = from; i < samples.size(); ++i) {
        if (std::abs(samples[i]) > threshold) {
            return i;
        }
    }
    return samples.size();
}

} // namespace TestSupport
