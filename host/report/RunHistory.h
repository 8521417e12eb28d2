// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// The runs of this user: one line of JSON for each, oldest first.
class RunHistory
{
public:
    // Older runs than these are dropped.
    static constexpr int MaxRuns = 1000;
    // A delay counts as changed if it differs by more than this and by more than half.
    static constexpr int NoticeableDelayMs = 50;

    explicit RunHistory(const QString& path);

    // Adds to the report what changed since the last run on the same platform in which every check
    // passed. Reads the file.
    void compare(Report& report) const;
    // Adds the line of this run, on another thread. file is the path of its report, or empty.
    void append(const Report& report, const QString& file) const;

private:
    QString m_path;
};
