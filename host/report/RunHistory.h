// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// The runs of this user, one line of JSON each, the oldest first.
class RunHistory
{
public:
    // More runs than this aren't kept.
    static constexpr int MaxRuns = 1000;
    // A delay counts as changed when it differs by more than this and by more than half.
    static constexpr int NoticeableDelayMs = 50;

    explicit RunHistory(const QString& path);

    // Says in the report what changed since the last run of the same platform in which everything
    // passed. Reads the file.
    void compare(Report& report) const;
    // Adds the run's line, from another thread. file is where its report stands; it may be empty.
    void append(const Report& report, const QString& file) const;

private:
    QString m_path;
};
