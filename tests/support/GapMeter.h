// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/GapCount.h"
#include "tests/support/RunDelay.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace TestSupport {

// How long the event loop may be blocked. With the address sanitizer the limit is higher: starting
// a child process copies the page tables of all freed memory, which takes longer than 50 ms.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 MaxGapMs = 150;
#else
constexpr qint64 MaxGapMs = 50;
#endif

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
        return m_count.longestMs();
    }

    GapCount count()
    {
        note();
        return m_count;
    }

private:
    static constexpr int BeatMs = 2;

    void note()
    {
        const qint64 delayMs = m_delay.totalMs();
        const qint64 gapMs = m_sinceBeat.restart() - (delayMs - m_delayAtBeatMs);
        m_delayAtBeatMs = delayMs;
        m_count.add(gapMs);
    }

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    RunDelay m_delay; // of the constructing thread
    qint64 m_delayAtBeatMs = m_delay.totalMs();
    GapCount m_count;
};

} // namespace TestSupport
