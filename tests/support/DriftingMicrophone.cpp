// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/DriftingMicrophone.h"

#include "tests/support/DrivingMicrophone.h"
#include "tests/support/FifoMicrophone.h"
#include "tests/support/SoundRecording.h"

#include <algorithm>

namespace TestSupport {

namespace {

constexpr double LeadSeconds = 1.0;
constexpr double BurstSeconds = 0.002;
constexpr double BurstHz = 4000.0;
constexpr double BurstDecibels = -8.0;
constexpr double ToneDecibels = -26.0;

} // namespace

DriftingMicrophone::DriftingMicrophone(SoundServer& server, const QString& name, double speed)
    : m_samplesPerSecond(SoundRecording::Rate * speed)
{
    if (server.kind() == SoundServer::Kind::PulseAudio) {
        m_feed = std::make_unique<FifoMicrophone>(server, name);
    } else {
        m_feed = std::make_unique<DrivingMicrophone>(name.toUtf8());
    }
}

DriftingMicrophone::~DriftingMicrophone()
{
    m_isOver = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void DriftingMicrophone::hear(int bursts)
{
    const double seconds = LeadSeconds + (bursts + 1) * BurstSpacingSeconds;
    m_sound = tone(seconds, ToneHz, ToneDecibels);
    const std::vector<float> burst = tone(BurstSeconds, BurstHz, BurstDecibels);
    for (int i = 0; i < bursts; ++i) {
        const double at = LeadSeconds + i * BurstSpacingSeconds;
        m_bursts.push_back(static_cast<std::size_t>(at * SoundRecording::Rate));
        std::copy(burst.begin(), burst.end(),
                  m_sound.begin() + static_cast<std::ptrdiff_t>(m_bursts.back()));
    }
    m_start = Clock::now();
    m_thread = std::thread([this] { run(); });
}

std::vector<DriftingMicrophone::Clock::time_point> DriftingMicrophone::burstTimes() const
{
    std::vector<Clock::time_point> result;
    for (const std::size_t sample : m_bursts) {
        result.push_back(timeOf(sample));
    }
    return result;
}

// As a device does, it hands over what it has heard in a while.
void DriftingMicrophone::run()
{
    constexpr std::size_t Size = MicrophoneFeed::PieceSize;
    for (std::size_t at = 0; at + Size <= m_sound.size() && !m_isOver; at += Size) {
        std::this_thread::sleep_until(timeOf(at + Size));
        m_feed->hear(m_sound.data() + at);
    }
    m_hasHeardAll = true;
}

DriftingMicrophone::Clock::time_point DriftingMicrophone::timeOf(std::size_t sample) const
{
    return m_start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(
                         static_cast<double>(sample) / m_samplesPerSecond));
}

} // namespace TestSupport
