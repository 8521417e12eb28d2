// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/FrameSlot.h"

#include "platform/backend/CameraCause.h"
#include "platform/backend/Log.h"

namespace Platform {

FrameSlot::FrameSlot(std::function<Clock::time_point()> now) : m_now(std::move(now))
{
}

int FrameSlot::open()
{
    const std::scoped_lock lock(m_mutex);
    m_timeout = StallTimeout();
    forgetFrames();
    m_statistics.start(m_now());
    m_modes.clear();
    m_isOpen = true;
    return ++m_generation;
}

void FrameSlot::close()
{
    const std::scoped_lock lock(m_mutex);
    m_timeout = StallTimeout();
    forgetFrames();
    m_isOpen = false;
    ++m_generation;
}

QImage FrameSlot::newest() const
{
    const std::scoped_lock lock(m_mutex);
    return m_frame;
}

bool FrameSlot::delivers() const
{
    const std::scoped_lock lock(m_mutex);
    return m_timeout.delivers(m_now());
}

bool FrameSlot::hasStalled() const
{
    const std::scoped_lock lock(m_mutex);
    return m_timeout.hasFrame() && !m_timeout.delivers(m_now());
}

bool FrameSlot::isBlack() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isBlack;
}

QJsonObject FrameSlot::figures() const
{
    const std::scoped_lock lock(m_mutex);
    QJsonObject result = m_statistics.figures();
    if (!m_modes.isEmpty()) {
        result.insert(QStringLiteral("modes"), m_modes);
    }
    return result;
}

void FrameSlot::notificationArrived()
{
    const std::scoped_lock lock(m_mutex);
    m_isNotificationUnderWay = false;
}

void FrameSlot::setHeld(bool isHeld)
{
    const std::scoped_lock lock(m_mutex);
    m_isHeld = isHeld;
}

void FrameSlot::setModes(int generation, const QString& text)
{
    const std::scoped_lock lock(m_mutex);
    if (takes(generation)) {
        m_modes = text;
        qCInfo(Log::camera, "The camera offers %s", qUtf8Printable(text));
    }
}

void FrameSlot::setRate(int generation, double framesPerSecond)
{
    const std::scoped_lock lock(m_mutex);
    if (takes(generation)) {
        m_timeout.setRate(framesPerSecond);
    }
}

void FrameSlot::expectFrames(int generation)
{
    const std::scoped_lock lock(m_mutex);
    if (takes(generation)) {
        m_expectedSince = m_now();
    }
}

void FrameSlot::interrupt(int generation)
{
    const std::scoped_lock lock(m_mutex);
    if (generation == m_generation && !m_isHeld) {
        forgetFrames();
    }
}

bool FrameSlot::put(int generation, const QImage& frame, const QSize& sourceSize)
{
    const FrameStatistics::Sample sample = FrameStatistics::sampleOf(frame);
    const std::scoped_lock lock(m_mutex);
    if (!takes(generation)) {
        return false;
    }
    const Clock::time_point now = m_now();
    m_frame = frame;
    m_timeout.frameArrived(now);
    m_statistics.add(sample, sourceSize, now);
    if (!sample.isBlack) {
        m_blackSince.reset();
    } else if (!m_blackSince) {
        m_blackSince = now;
    }
    m_isBlack = m_blackSince && now - *m_blackSince >= CameraCause::BlackTime;
    const bool mustNotify = !m_isNotificationUnderWay;
    m_isNotificationUnderWay = true;
    return mustNotify;
}

bool FrameSlot::isSilent() const
{
    const std::scoped_lock lock(m_mutex);
    const Clock::time_point now = m_now();
    return m_expectedSince && !m_timeout.delivers(now) &&
           now - *m_expectedSince > m_timeout.duration();
}

void FrameSlot::forgetFrames()
{
    m_frame = QImage();
    m_timeout.reset();
    m_expectedSince.reset();
    m_blackSince.reset();
    m_isBlack = false;
}

} // namespace Platform
