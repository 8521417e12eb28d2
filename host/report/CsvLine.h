// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>
#include <QStringList>
#include <vector>

// Lines of a CSV file (RFC 4180) that may be opened with a spreadsheet.
namespace CsvLine {

QString ofNames(const QStringList& names);
// A text that a spreadsheet would take for a formula gets an apostrophe before it, as spreadsheets
// mark texts. Null is an empty cell.
QString of(const std::vector<QJsonValue>& cells);

} // namespace CsvLine
