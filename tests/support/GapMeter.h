// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <algorithm>

namespace TestSupport {

// Measures the longest time for which the event loop of this thread answered nobody.
class GapMeter
{
public:
    GapMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { note(); });
        m_timer.start(BeatMs);
        m_sinceBeat.start();
    }

    qint64 longestMs()
    {
        note();
        return m_longestMs;
    }

private:
    static constexpr int BeatMs = 2;

    void note() { m_longestMs = std::max(m_longestMs, m_sinceBeat.restart()); }

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    qint64 m_longestMs = 0;
};

} // namespace TestSupport
