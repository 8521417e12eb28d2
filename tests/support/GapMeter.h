// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/RunDelay.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <algorithm>
#include <map>

namespace TestSupport {

// How long the event loop may be blocked. With the address sanitizer the limit is higher: starting
// a child process copies the page tables of all freed memory, which takes longer than 50 ms.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 MaxGapMs = 150;
#else
constexpr qint64 MaxGapMs = 50;
#endif
// 99 of 100 gaps: one frame of a screen.
constexpr double UsualGapMs = 16.7;

// Measures the longest time for which the event loop of this thread was blocked. Time in which the
// thread was ready to run but waited for a processor is not counted.
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

    // 99 of 100 gaps are no longer.
    qint64 usualMs() const
    {
        qint64 longer = 0;
        for (auto gap = m_countByMs.crbegin(); gap != m_countByMs.crend(); ++gap) {
            longer += gap->second;
            if (longer * 100 > m_count) {
                return gap->first;
            }
        }
        return 0;
    }

private:
    static constexpr int BeatMs = 2;

    void note()
    {
        const qint64 delayMs = m_delay.totalMs();
        const qint64 gapMs = m_sinceBeat.restart() - (delayMs - m_delayAtBeatMs);
        m_delayAtBeatMs = delayMs;
        m_longestMs = std::max(m_longestMs, gapMs);
        ++m_countByMs[gapMs];
        ++m_count;
    }

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    RunDelay m_delay; // of the constructing thread
    qint64 m_delayAtBeatMs = m_delay.totalMs();
    qint64 m_longestMs = 0;
    std::map<qint64, qint64> m_countByMs;
    qint64 m_count = 0;
};

} // namespace TestSupport
