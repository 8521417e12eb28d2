// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/Report.h"

// Reports as documents. Text and HTML are in the given language; if that isn't English, an English
// version for support follows.
namespace ReportWriter {

QString toText(const Report& report, const QString& language);
QString toHtml(const std::vector<Report>& reports, const QString& language); // self-contained
QByteArray toJson(const Report& report);
// One line for each report; a redacted report has a number instead of its name.
QString toRoomTable(const std::vector<Report>& reports, const QStringList& names,
                    const QString& language);

// The format that the extension of the file name means; JSON by default.
Options::Format formatOf(const QString& fileName);
QByteArray toFormat(const Report& report, Options::Format format, const QString& language);

} // namespace ReportWriter
