// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameSlot.h"

namespace Platform {

int FrameSlot::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_picture = QImage();
    m_rule = StallTimeout();
    m_statistics.start(Clock::now());
    m_isOpen = true;
    return ++m_generation;
}

void FrameSlot::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_picture = QImage();
    m_rule = StallTimeout();
    m_isOpen = false;
    ++m_generation;
}

QImage FrameSlot::newest() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_picture;
}

bool FrameSlot::delivers() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_rule.delivers(Clock::now());
}

QJsonObject FrameSlot::figures() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_statistics.figures();
}

void FrameSlot::notificationArrived()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isNotificationUnderWay = false;
}

void FrameSlot::setRate(int generation, double framesPerSecond)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isOpen && generation == m_generation) {
        m_rule.setRate(framesPerSecond);
    }
}

void FrameSlot::interrupt(int generation)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (generation == m_generation) {
        m_picture = QImage();
        m_rule.reset();
    }
}

bool FrameSlot::put(int generation, const QImage& picture, const QSize& sourceSize)
{
    const FrameStatistics::Sample sample = FrameStatistics::sampleOf(picture);
    const Clock::time_point now = Clock::now();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isOpen || generation != m_generation) {
        return false;
    }
    m_picture = picture;
    m_rule.frameArrived(now);
    m_statistics.add(sample, sourceSize, now);
    const bool mustNotify = !m_isNotificationUnderWay;
    m_isNotificationUnderWay = true;
    return mustNotify;
}

bool FrameSlot::isSilent(Clock::time_point since) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Clock::time_point now = Clock::now();
    return !m_rule.delivers(now) && now - since > m_rule.duration();
}

} // namespace Platform
