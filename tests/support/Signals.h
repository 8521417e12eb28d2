// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

// Sounds in memory, and what is heard in them. All have this many samples a second.
namespace TestSupport {

constexpr int SoundRate = 48000;
constexpr float Audible = 0.003F; // -50 dBFS

std::vector<float> silence(double seconds);
std::vector<float> tone(double seconds, double frequency, double decibels);
double rms(const std::vector<float>& samples, std::size_t from, std::size_t count);
// Similarity, 0 to 1, of a sound and a recording of it. The recording is aligned by its first sound
// and by a search for the best delay near it.
double correlation(const std::vector<float>& recording, const std::vector<float>& sound);
// The same for the course of the loudness, anywhere in the recording. A sound that clock drift made
// a little longer still has the same loudness.
double loudnessCorrelation(const std::vector<float>& recording, const std::vector<float>& sound);
// Index of the first sample that is louder than the threshold; the size if there is none.
std::size_t firstAbove(const std::vector<float>& samples, float threshold, std::size_t from = 0);

} // namespace TestSupport
