// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/wasapi/WaveOutPlayer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr unsigned BlocksPerSecond = 25; // 40 ms each

} // namespace

WaveOutPlayer::WaveOutPlayer(const std::vector<float>& samples, unsigned rate)
{
    WAVEFORMATEX format = {};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = 1;
    format.nSamplesPerSec = rate;
    format.wBitsPerSample = 8 * sizeof(short);
    format.nBlockAlign = sizeof(short);
    format.nAvgBytesPerSec = rate * format.nBlockAlign;
    if (waveOutOpen(&m_device, WAVE_MAPPER, &format, 0, 0, CALLBACK_NULL) != MMSYSERR_NOERROR) {
        return;
    }
    m_samples.reserve(samples.size());
    for (const float sample : samples) {
        const float bounded = std::clamp(sample, -1.0F, 1.0F);
        m_samples.push_back(
            static_cast<short>(std::lround(bounded * std::numeric_limits<short>::max())));
    }
    const std::size_t blockSize = rate / BlocksPerSecond;
    m_blocks.resize(m_samples.size() / blockSize);
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        m_blocks[i].lpData = reinterpret_cast<LPSTR>(m_samples.data() + i * blockSize);
        m_blocks[i].dwBufferLength = static_cast<DWORD>(blockSize * sizeof(short));
        waveOutPrepareHeader(m_device, &m_blocks[i], sizeof(WAVEHDR));
        waveOutWrite(m_device, &m_blocks[i], sizeof(WAVEHDR));
    }
}

WaveOutPlayer::~WaveOutPlayer()
{
    if (!m_device) {
        return;
    }
    waveOutReset(m_device);
    for (WAVEHDR& block : m_blocks) {
        waveOutUnprepareHeader(m_device, &block, sizeof(WAVEHDR));
    }
    waveOutClose(m_device);
}
