// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/Options.h"
#include "host/report/Report.h"
#include "platform/devices/DeliveryOutcome.h"

#include <chrono>
#include <functional>

// The way of a run's report to the report server (docs/report-upload.md).
namespace ReportUpload {

// What is posted. The report is as --redact asks; without that option, the level is personal.
QByteArray documentOf(const Report& report, const Options& options);

using Deliver = std::function<Platform::DeliveryOutcome(std::chrono::milliseconds limit)>;

// Waits until the reports on their way have arrived or failed, at most for the limit. Says on
// standard error that it waits, if it does, and what didn't arrive, in one line.
void finish(const Deliver& deliver, const QString& url, std::chrono::milliseconds limit);

} // namespace ReportUpload
