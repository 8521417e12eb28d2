// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

struct Fault;

// The outcome of a fault over all its repetitions.
struct FaultResult
{
    int injections = 0;
    int signalCount = 0;
    qint64 longestGapMs = -1; // -1: not measured
    QStringList failures;
    qint64 ms = 0;
};

// Runs one fault in a process of its own, so that a crash or a hang ends that fault alone.
namespace FaultProcess {

constexpr int LongGapsCode = 3; // what it ends with if more than 1 of 100 gaps is too long

FaultResult run(const Fault& fault, quint32 seed, int repetitions);

} // namespace FaultProcess
