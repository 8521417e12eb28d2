// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

// The answers that were given, by check, as the report has them.
using GivenAnswers = QMap<QString, QString>;

// Whether what a run left behind is whole and says what was answered, once.
namespace ReportProof {

// Empty, or what is wrong with the report.
QString problemOfReport(const QString& file, const GivenAnswers& given);
// Each line must be whole. reportFile: of a run that must be there exactly once; empty: any.
QString problemOfHistory(const QString& file, const QString& reportFile);

bool isWholeOrMissing(const QString& jsonFile);

} // namespace ReportProof
