// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

// While this object lives, the first SIGINT, SIGTERM or SIGHUP (on Windows: Ctrl+C, or closing the
// console) ends all event loops, so the program ends as usual. A second SIGINT or SIGTERM ends it
// at once. Only one object at a time; GUI thread only.
class TerminationSignals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(TerminationSignals)

public:
    TerminationSignals();
    ~TerminationSignals() override;

    static bool haveArrived() { return s_haveArrived; }
    bool hasTerminalClosed() const { return m_hasTerminalClosed; } // nobody reads the output

private:
    std::unique_ptr<QObject> m_watch; // receives the signal, if the system needs an object for it
    inline static bool s_haveArrived = false;
    bool m_hasTerminalClosed = false;
};
