// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <condition_variable>
#include <mutex>
#include <thread>

// Watches over the start of the application object: Qt ends the program if it finds no display, and
// waits for ever if the display server doesn't answer. While this lives, both end it with one line
// and ExitCode::Unavailable. One at a time, GUI thread only.
class DisplayOpening
{
public:
    static constexpr int AnswerTimeoutMs = 10000;

    // problem: the line for a display that can't be opened. Lets Qt take another kind of display if
    // the first one fails, unless the environment asks for one kind.
    explicit DisplayOpening(const QString& problem);
    ~DisplayOpening();
    DisplayOpening(const DisplayOpening&) = delete;
    DisplayOpening& operator=(const DisplayOpening&) = delete;

    static bool hasDisplay();
    static QString problem(); // one line; needs the texts of a language

private:
    void watch();

    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isOpen = false;
    std::thread m_watch; // not one of Qt's: it starts before the application object
};
