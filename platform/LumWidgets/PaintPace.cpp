// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/LumWidgets/PaintPace.h"

#include <QCoreApplication>
#include <QTimerEvent>
#include <QWidget>

PaintPace::PaintPace(QWidget* window) : QObject(window)
{
    window->installEventFilter(this);
}

PaintPace::~PaintPace() = default;

// Qt asks for one painting at a time: until it is done, it only collects what else has changed.
bool PaintPace::eventFilter(QObject* watched, QEvent* event)
{
    const bool isPainting = watched == parent() && event->type() == QEvent::UpdateRequest;
    return (isPainting && mustWait()) || QObject::eventFilter(watched, event);
}

void PaintPace::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_next.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    m_next.stop();
    m_sinceLast.invalidate(); // a timer may be early by the fraction of a millisecond
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(parent(), &request);
}

bool PaintPace::mustWait()
{
    if (m_next.isActive()) {
        return true;
    }
    const qint64 elapsedMs = m_sinceLast.isValid() ? m_sinceLast.elapsed() : IntervalMs;
    if (elapsedMs < IntervalMs) {
        m_next.start(static_cast<int>(IntervalMs - elapsedMs), Qt::PreciseTimer, this);
        return true;
    }
    m_sinceLast.start();
    return false;
}
