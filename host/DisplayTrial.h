// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Qt ends the program if it finds no display. So that is tried in a process of its own, before
// the application object is made. Some X servers start anew when their last client leaves: the
// trial stays connected until it is destroyed, which is after the application object is made.
class DisplayTrial
{
public:
    // Chooses the kind of display that works, if the environment leaves that open.
    DisplayTrial(int argc, char* argv[]);
    ~DisplayTrial();
    DisplayTrial(const DisplayTrial&) = delete;
    DisplayTrial& operator=(const DisplayTrial&) = delete;

    bool hasFailed() const { return m_hasFailed; }
    QString problem() const; // one line; needs the texts of a language

private:
    bool opens(int argc, char* argv[]);
    void end();

    bool m_hasFailed = false;
    QString m_tried; // the displays, if there are any
    int m_link = -1; // to the process; it ends when this is closed
    int m_process = -1;
};
