// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/Report.h"

class TwinTexts;

// Reports as documents. Text and HTML are in the given language; if that isn't English, an English
// version for support follows.
namespace ReportWriter {

QString toText(const Report& report, const TwinTexts& texts);
QByteArray toJson(const Report& report);

// A page of any number of reports.
QString htmlBegin(const TwinTexts& texts);
QString htmlOf(const Report& report, const TwinTexts& texts);
QString htmlEnd();

// The format that the extension of the file name means; JSON by default.
Options::Format formatOf(const QString& fileName);
QByteArray toFormat(const Report& report, Options::Format format, const QString& language);

} // namespace ReportWriter
