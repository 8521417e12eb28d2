// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"
#include "tests/support/GapCount.h"

#include <QJsonObject>
#include <QString>
#include <functional>

struct Fault;
class Injection;

// Injects one fault again and again in this process, and writes a line for each repetition.
class FaultRun
{
public:
    using Report = std::function<void(const QJsonObject& line)>;

    FaultRun(const Fault& fault, quint32 seed, Report report);

    void run(int repetitions);
    bool hasUsualGaps() const; // of all repetitions

private:
    void repeat(int number, const std::function<void(Injection&)>& inject);
    bool strikes(int number, Step step) const;
    void runDialog(int repetitions);

    const Fault& m_fault;
    quint32 m_seed;
    Report m_report;
    TestSupport::GapCount m_gaps;
};
