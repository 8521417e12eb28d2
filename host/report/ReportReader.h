// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/report/Report.h"

#include <QStringList>
#include <functional>

class Redaction;

// Reads any number of reports with a fixed amount of memory: threads read ahead, up to a number of
// bytes. Waits for the disk, so no dialog may call it.
namespace ReportReader {

struct Read
{
    QString file;
    std::optional<Report> report; // nothing if the file is none
    QString problem;              // then one line that names the file
};

// Hands over all of them on the calling thread, in their order. "-" is standard input.
void readAll(const QStringList& files, const Redaction& redaction,
             const std::function<void(const Read& read)>& handOver);

} // namespace ReportReader
