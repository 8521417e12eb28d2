// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/CaptureMeter.h"

#include "platform/devices/sound/MicrophoneAnalysis.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace Platform {

namespace {

// A noticeable rise is published at once, all else as often as an eye can follow. Silence is
// published once: nothing changes until it ends.
constexpr std::chrono::milliseconds LevelInterval(19);
constexpr double NoticeableRise = 0.02;

} // namespace

CaptureMeter::CaptureMeter(unsigned rate, std::shared_ptr<MicrophoneAnalysis> analysis,
                           Events events, Clock::time_point now)
    : m_rate(rate), m_analysis(std::move(analysis)), m_events(std::move(events)), m_lastSample(now)
{
    resetMeters();
}

CaptureMeter::~CaptureMeter() = default;

void CaptureMeter::add(const float* samples, const std::vector<float>& mono, Clock::time_point now)
{
    m_lastSample = now;
    setDelivering(true);
    for (std::size_t i = 0; i < mono.size(); ++i) {
        std::optional<double> level;
        bool isSound = false;
        for (std::size_t channel = 0; channel < Channels; ++channel) {
            level = std::max(level, m_meters[channel].add(samples[i * Channels + channel]));
            isSound = isSound || m_meters[channel].isSound();
        }
        if (level) {
            publish(*level, now);
        }
        m_analysis->add(mono[i], isSound);
    }
    const bool isHeard = std::any_of(m_meters.begin(), m_meters.end(),
                                     [](const LevelMeter& meter) { return meter.hasHeardSound(); });
    if (isHeard && !std::exchange(m_isHeard, true)) {
        m_events.soundHeard();
    }
}

// No server reports that a device went silent or that the server itself is frozen. Only the missing
// samples show it.
void CaptureMeter::watch(Clock::time_point now)
{
    if (now - m_lastSample > StallTimeout) {
        setDelivering(false);
    }
}

void CaptureMeter::mixToMono(const float* samples, std::size_t frames, std::vector<float>& mono)
{
    mono.resize(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        mono[i] = std::accumulate(samples + i * Channels, samples + (i + 1) * Channels, 0.0F) /
                  static_cast<float>(Channels);
    }
}

void CaptureMeter::resetMeters()
{
    m_meters.assign(Channels, LevelMeter(m_rate));
}

void CaptureMeter::publish(double level, Clock::time_point now)
{
    const bool isStillSilent = level == 0.0 && m_lastLevel == 0.0;
    const bool isDue = !isStillSilent && now - m_lastLevelTime >= LevelInterval;
    if (level > m_lastLevel + NoticeableRise || isDue) {
        m_lastLevel = level;
        m_lastLevelTime = now;
        m_events.levelMeasured(level);
    }
}

void CaptureMeter::setDelivering(bool delivers)
{
    if (m_delivers == delivers) {
        return;
    }
    m_delivers = delivers;
    m_events.deliveryChanged(delivers);
    if (!delivers) {
        m_lastLevel = 0.0;
        resetMeters();
        m_events.levelMeasured(0.0);
    }
}

} // namespace Platform
