// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

// While it lives, the first SIGINT or SIGTERM ends all event loops, so that the program leaves by
// its ordinary way; a second one ends it at once. One at a time, GUI thread only.
class TerminationSignals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TerminationSignals)

public:
    TerminationSignals();
    ~TerminationSignals() override;

    bool haveArrived() const { return m_haveArrived; }

private:
    QSocketNotifier m_notifier;
    bool m_haveArrived = false;
};
