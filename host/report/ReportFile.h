// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// Reads and writes reports. Waits for the disk, so no dialog may call it.
namespace ReportFile {

inline const QLatin1String StandardInput("-");

// A larger file is no report.
constexpr qint64 MaxBytes = qint64(4) * 1024 * 1024;

// A larger file is no list of reports.
constexpr qint64 MaxListBytes = qint64(64) * 1024 * 1024;

constexpr int WriteTimeoutMs = 5000;

// Writes the whole file, or leaves it as it was. Returns nothing, or one line with the file, the
// problem and what to do. A disk that takes longer than the timeout may still write it.
QString write(const QString& path, const QByteArray& content, int timeoutMs = WriteTimeoutMs);
// Checks whether write() can work, without writing. Returns the same.
QString problemOfWriting(const QString& path);
// Reads a file, or standard input if it is "-". Returns nothing, or one line that names it.
QString contentOf(const QString& path, QByteArray* content, qint64 maxBytes = MaxListBytes);
// Nothing if the file is no report; error then is one line that names it.
std::optional<Report> read(const QString& path, QString* error);
// The key of Redaction. It is in this file, which the first call creates. Returns nothing if that
// fails; error then is one line.
QByteArray redactionKey(const QString& path, QString* error);

} // namespace ReportFile
