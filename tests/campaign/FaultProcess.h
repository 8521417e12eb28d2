// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct Fault;

// The outcome of a fault over all its repetitions.
struct FaultResult
{
    int injections = 0;
    int signalCount = 0;
    qint64 longestGapMs = -1; // -1: not measured
    QStringList failures;
    bool isDone = false; // all repetitions have ended
};

// Runs faults in a process of their own, so that a crash or a hang ends one fault alone: those
// after it get another process.
namespace FaultProcess {

// In a line of the process: the fault, and whether this was its last line.
const QString FaultKey = QStringLiteral("fault");
const QString DoneKey = QStringLiteral("isDone");

// In place of a number of repetitions: those of the table.
constexpr int Quick = 0;
constexpr int Full = -1;

// A result for each fault, in their order.
std::vector<FaultResult> run(const std::vector<const Fault*>& faults, quint32 seed,
                             int repetitions);

int repetitionsOf(const Fault& fault, int repetitions);

} // namespace FaultProcess
