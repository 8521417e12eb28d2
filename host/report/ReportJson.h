// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

// The JSON of a report, version 1 (docs/report-format.md, docs/report-schema.json).
namespace ReportJson {

QJsonObject toJson(const Report& report);
// Nothing if the object is no report; error then is one line that names the field.
std::optional<Report> fromJson(const QJsonObject& object, QString* error);

} // namespace ReportJson
