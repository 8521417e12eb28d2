// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/Timeline.h"

#include <algorithm>

namespace Platform {

Timeline::Timeline(std::vector<Scenario::Event> events, ScriptedEngine& engine)
    : m_events(std::move(events)), m_engine(engine)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Timeline::playDue);
    m_clock.start();
    if (!m_events.empty()) {
        m_timer.start(m_events.front().atMs);
    }
}

Timeline::~Timeline() = default;

void Timeline::playDue()
{
    while (m_next < m_events.size() && m_events.at(m_next).atMs <= m_clock.elapsed()) {
        m_events.at(m_next++).action(m_engine);
    }
    if (m_next < m_events.size()) {
        m_timer.start(
            static_cast<int>(std::max<qint64>(0, m_events.at(m_next).atMs - m_clock.elapsed())));
    }
}

} // namespace Platform
