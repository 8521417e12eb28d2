// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/campaign/Step.h"
#include "tests/support/GapCount.h"

#include <QJsonObject>
#include <QString>
#include <functional>
#include <vector>

struct Fault;
class Injection;

// Injects faults in this process, each again and again, and writes a line for each repetition and
// one at the end of each fault. Those that need servers share them, and the first check, which
// isn't disturbed.
class FaultRun
{
public:
    using Report = std::function<void(const QJsonObject& line)>;

    // All of the same needs.
    FaultRun(std::vector<const Fault*> faults, quint32 seed, Report report);

    void run(int repetitions); // as FaultProcess::run()

private:
    using Checker = std::function<void(const Fault&, int number)>;

    void repeat(const Fault& fault, int number, const std::function<void(Injection&)>& inject);
    void repeatAll(int repetitions, const Checker& check);
    void finish(const Fault& fault);
    void runDialogs(int repetitions);

    std::vector<const Fault*> m_faults;
    quint32 m_seed;
    Report m_report;
    TestSupport::GapCount m_gaps; // of the present fault
};
