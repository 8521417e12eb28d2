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

    struct Run
    {
        QString id;
        QDateTime finished;
        QString platform; // words of the report
        QString outcome;
        QJsonObject verdicts; // by check
        QString report;       // its file, or empty
    };

    // Oldest first, without damaged lines. problem: one line if the file can't be read.
    std::vector<Run> runs(QString* problem) const;
    // Adds to the report what changed since the last run on the same platform in which every check
    // passed. Texts that are redacted in another way count as unchanged. Reads the file.
    void compare(Report& report) const;
    // Adds the line of this run, on another thread. file is the path of its report, or empty. A
    // path below the user's home is kept as "~/…" if the report is redacted.
    void append(const Report& report, const QString& file) const;

private:
    QString m_path;
};
