// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/DriftControl.h"
#include "platform/devices/pulse/DriftResampler.h"
#include "platform/devices/pulse/HowlGuard.h"
#include "platform/devices/pulse/PulseHandles.h"

#include <QString>
#include <vector>

namespace Platform {

// Plays what the microphone hears on one speaker with as little delay as the server allows. Sound
// thread only. Where the speaker fails it falls silent.
class ListenBack
{
public:
    ListenBack(pa_context* context, const QString& speakerId, unsigned rate);

    void play(const float* samples, std::size_t count);
    bool hasFailed() const;

private:
    double storeMs() const;
    void noteUnderflow();

    double m_samplesPerMs;
    HowlGuard m_guard;
    DriftResampler m_resampler;
    DriftControl m_drift;
    std::size_t m_toSkip = 0; // samples
    bool m_hasStarted = false;
    std::vector<float> m_output;
    PulseStreamHandle m_stream;
};

} // namespace Platform
