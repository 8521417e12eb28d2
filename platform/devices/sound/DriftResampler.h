// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

struct SRC_STATE_tag;

namespace Platform {

// Makes a sound longer or shorter by up to 1.5 %, so that the clock of one device follows that of
// another without tears. Of silence nothing is computed but its length: most of the processor time
// of listening to oneself goes into the filter, and a muted microphone sends nothing but zeros.
class DriftResampler
{
public:
    static constexpr double MaxDeviation = 0.015;
    // How much later the sound comes out. Silence takes its place at the beginning, so that the
    // first call already returns as many samples as it gets.
    static constexpr std::size_t DelaySamples = 20;

    DriftResampler();
    ~DriftResampler();
    DriftResampler(const DriftResampler&) = delete;
    DriftResampler& operator=(const DriftResampler&) = delete;

    // The share by which the sound becomes shorter; a negative share makes it longer.
    void setDeviation(double deviation);
    double deviation() const { return m_deviation; }
    void process(const std::vector<float>& samples, std::vector<float>& result); // appends

private:
    bool isAllSilent(const std::vector<float>& samples); // and the filter holds nothing else
    void extendSilence(std::size_t count, std::vector<float>& result);

    struct Deleter
    {
        void operator()(SRC_STATE_tag* state) const;
    };

    std::unique_ptr<SRC_STATE_tag, Deleter> m_state;
    double m_deviation = 0.0;
    std::size_t m_silentSamples = 0; // the last ones that came in
    double m_owedSamples = 0.0;      // of silence, less than one
};

} // namespace Platform
