// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <windows.h>
// Must follow windows.h.
#include <mmsystem.h>

// Plays a sound on the default speaker by the functions that Qt's player uses on Windows (waveOut),
// in blocks as long as Qt's.
class WaveOutPlayer
{
public:
    // Mono samples. They have to outlive it.
    WaveOutPlayer(const std::vector<float>& samples, unsigned rate);
    ~WaveOutPlayer(); // ends the sound
    WaveOutPlayer(const WaveOutPlayer&) = delete;
    WaveOutPlayer& operator=(const WaveOutPlayer&) = delete;

private:
    HWAVEOUT m_device = nullptr;
    std::vector<short> m_samples;
    std::vector<WAVEHDR> m_blocks;
};
