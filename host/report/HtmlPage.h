// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/ReportTexts.h"

// The frame of an HTML page that needs no other file and runs no script. Light or dark, as the
// reader's system is.
namespace HtmlPage {

QString begin(const ReportTexts& texts, const QString& title);
QString end();

QString escaped(const QString& text);         // foreign text, on one line
QString languageOf(const ReportTexts& texts); // the attributes lang and dir

} // namespace HtmlPage
