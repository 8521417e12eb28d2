// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

// Qt ends the program at once if the display server goes away, in the middle of an event. Its
// last word is a warning: while this lives, that is the moment to save what there is, and the
// program ends with ExitCode::Unavailable. One at a time, GUI thread only.
class DisplayLoss
{
public:
    // Messages for developers are shown if isVerbose, else dropped.
    explicit DisplayLoss(bool isVerbose);
    ~DisplayLoss();
    DisplayLoss(const DisplayLoss&) = delete;
    DisplayLoss& operator=(const DisplayLoss&) = delete;

    // Null: there is nothing to save. It must not run an event loop nor touch a window.
    static void setSaving(std::function<void()> save);
};
