// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QStringList>

// Which reports in this program's folder may be removed. Files with any other name are left alone.
namespace OldReports {

constexpr int MaxReports = 1000;
constexpr int MaxAgeDays = 400;
// The newest stay, whatever their age: the clock may be wrong, now or when they were written.
constexpr int KeptAlways = 100;

// runs: the reports of the runs, oldest first. Their order counts, not the times in their names: a
// clock that was set back would make the newest report the oldest.
QStringList of(const QString& folder, const QStringList& runs, const QDateTime& now);

} // namespace OldReports
