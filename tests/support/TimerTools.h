// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>
#include <QVector>

// The running timers of an object, and ticks at will, so that no test waits for a timer.
inline QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject* object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

// Ids of those with that interval.
inline QVector<int> coarseTimers(QObject* object, int interval)
{
    QVector<int> ids;
    for (const auto& timer : timersOf(object)) {
        if (timer.interval == interval && timer.timerType == Qt::CoarseTimer) {
            ids.append(timer.timerId);
        }
    }
    return ids;
}

inline void tick(QObject* object, int timerId)
{
    QTimerEvent event(timerId);
    QCoreApplication::sendEvent(object, &event);
}
