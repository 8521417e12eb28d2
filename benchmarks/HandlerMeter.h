// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <utility>

// An application that knows how long its own thread was kept by the handler of one event: nothing
// else is answered meanwhile. What the machine takes from the thread between events doesn't count.
template <typename Application>
class HandlerMeter final : public Application
{
public:
    using Application::Application;

    void restart() { m_longestNs = 0; }
    double longestMs() const { return static_cast<double>(m_longestNs) * 1e-6; }

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (QThread::currentThread() != this->thread() || std::exchange(m_isInside, true)) {
            return Application::notify(receiver, event);
        }
        QElapsedTimer clock;
        clock.start();
        const bool isHandled = Application::notify(receiver, event);
        m_longestNs = std::max(m_longestNs, clock.nsecsElapsed());
        m_isInside = false;
        return isHandled;
    }

private:
    bool m_isInside = false;
    qint64 m_longestNs = 0;
};
