// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

class QWidget;

// Lets a window paint about sixty times a second at most. Qt paints in every round of the event
// loop in which something changed, which can be thousands of times. What changes after a pause is
// painted at once; what changes sooner is painted together when its time has come. It is a child of
// the window, and has a timer only while something waits. GUI thread only.
class PaintPace : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PaintPace)

public:
    static constexpr int IntervalMs = 16;

    explicit PaintPace(QWidget* window);
    ~PaintPace() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    bool mustWait(); // starts the timer in that case

    QElapsedTimer m_sinceLast; // invalid: whatever comes next is painted at once
    QBasicTimer m_next;
};
