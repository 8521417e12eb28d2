// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>

// The running timers of an object, and ticks at will, so that no test waits for a timer.
inline QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject* object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

inline void tick(QObject* object, int timerId)
{
    QTimerEvent event(timerId);
    QCoreApplication::sendEvent(object, &event);
}
