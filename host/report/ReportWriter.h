// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/Report.h"

// Reports as documents. Text and HTML stand in the given language, with an English twin below for
// support where that is another one; JSON has no language.
namespace ReportWriter {

QString toText(const Report& report, const QString& language);
QString toHtml(const std::vector<Report>& reports, const QString& language); // self-contained
QByteArray toJson(const Report& report);
// A line for each report; names are shown where nothing was redacted.
QString toRoomTable(const std::vector<Report>& reports, const QStringList& names,
                    const QString& language);

// As the ending of a file's name says; JSON where it says nothing.
Options::Format formatOf(const QString& fileName);
QByteArray toFormat(const Report& report, Options::Format format, const QString& language);

} // namespace ReportWriter
