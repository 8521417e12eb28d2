// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

// While it lives, the first SIGINT, SIGTERM or SIGHUP (on Windows: Ctrl+C, or the end of the
// console) ends all event loops, so that the program leaves by its ordinary way; a second SIGINT or
// SIGTERM ends it at once. One at a time, GUI thread only.
class TerminationSignals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TerminationSignals)

public:
    TerminationSignals();
    ~TerminationSignals() override;

    bool haveArrived() const { return m_haveArrived; }
    bool hasTerminalClosed() const { return m_hasTerminalClosed; } // nobody reads the output

private:
    std::unique_ptr<QObject> m_watch; // what the system wakes, where it needs one
    bool m_haveArrived = false;
    bool m_hasTerminalClosed = false;
};
