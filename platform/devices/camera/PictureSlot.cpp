// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/PictureSlot.h"

namespace Platform {

int PictureSlot::open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_picture = QImage();
    m_rule = DeliveryRule();
    m_statistics.start(Clock::now());
    m_isOpen = true;
    return ++m_generation;
}

void PictureSlot::close()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_picture = QImage();
    m_rule = DeliveryRule();
    m_isOpen = false;
    ++m_generation;
}

QImage PictureSlot::newest() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_picture;
}

bool PictureSlot::delivers() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_rule.delivers(Clock::now());
}

QJsonObject PictureSlot::figures() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_statistics.figures();
}

void PictureSlot::notificationArrived()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isNotificationUnderWay = false;
}

void PictureSlot::setRate(int generation, double picturesPerSecond)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_isOpen && generation == m_generation) {
        m_rule.setRate(picturesPerSecond);
    }
}

void PictureSlot::interrupt(int generation)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (generation == m_generation) {
        m_picture = QImage();
        m_rule.reset();
    }
}

bool PictureSlot::put(int generation, const QImage& picture, const QSize& sourceSize)
{
    const PictureStatistics::Sample sample = PictureStatistics::sampleOf(picture);
    const Clock::time_point now = Clock::now();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isOpen || generation != m_generation) {
        return false;
    }
    m_picture = picture;
    m_rule.pictureArrived(now);
    m_statistics.add(sample, sourceSize, now);
    const bool mustNotify = !m_isNotificationUnderWay;
    m_isNotificationUnderWay = true;
    return mustNotify;
}

bool PictureSlot::isSilent(Clock::time_point since) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Clock::time_point now = Clock::now();
    return !m_rule.delivers(now) && now - since > m_rule.allowance();
}

} // namespace Platform
