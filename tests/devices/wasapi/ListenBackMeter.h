// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace TestSupport {

// What came of a voice on its way from the microphone to the speaker.
struct ListenBackFigures
{
    std::vector<double> delaysMs;    // of its bursts, sorted
    std::vector<double> gapsMs;      // pieces of silence within the sound
    std::vector<double> gapsSeconds; // when they came

    double medianMs() const { return delaysMs[delaysMs.size() / 2]; }
    QString toString() const;
};

// Speaks into the microphone of the bus (NativeSoundServer::plugBus()), and listens to its speaker.
// It measures whatever plays the one on the other, from sample to sample on one clock.
namespace ListenBackMeter {

// Nothing if less than half of the voice was heard.
std::optional<ListenBackFigures> measure(double seconds);

} // namespace ListenBackMeter
} // namespace TestSupport
