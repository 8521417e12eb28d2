// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// While it lives, keeps what the engine's categories log, details included, and all warnings. What
// is shown on the terminal stays as it is. One at a time, made and destroyed on the GUI thread.
class LogRecorder
{
public:
    static constexpr int MaxLines = 20000; // the newest are left out, and counted
    static constexpr int MaxLineLength = 2000;

    explicit LogRecorder(bool isVerbose); // whether the terminal shows all of it
    ~LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    // One line for each message: seconds since the start, category, level, text. From any thread.
    QByteArray content() const;
};
