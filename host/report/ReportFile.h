// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// Reports in files. Waits for the disk: not for a dialog.
namespace ReportFile {

// Larger files aren't reports.
constexpr qint64 MaxBytes = 4 * 1024 * 1024;

// Writes the file whole or leaves it as it was. Returns nothing, or one line that names the file,
// what is wrong and what to do.
QString write(const QString& path, const QByteArray& content);
// Whether write() may work, without writing; returns likewise.
QString problemOfWriting(const QString& path);
// Nothing where the file isn't a report; error is one line that names it.
std::optional<Report> read(const QString& path, QString* error);
// The secret that Redaction makes codes with: the file's, which is made at the first call. Returns
// nothing where that fails; error is one line.
QByteArray redactionKey(const QString& path, QString* error);

} // namespace ReportFile
