// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/FaultRun.h"

#include "tests/campaign/CheckRun.h"
#include "tests/campaign/DeviceRig.h"
#include "tests/campaign/Fault.h"
#include "tests/campaign/Holdings.h"
#include "tests/campaign/ScriptedFaults.h"

#include <QJsonArray>

#include <algorithm>
#include <memory>

FaultRun::FaultRun(const Fault& fault, quint32 seed, Report report)
    : m_fault(fault), m_seed(seed), m_report(std::move(report))
{
}

void FaultRun::run(int repetitions)
{
    if (m_fault.atStep) {
        runDialog(repetitions);
        return;
    }
    for (int i = 0; i < repetitions; ++i) {
        repeat(i, m_fault.whole);
    }
}

bool FaultRun::hasUsualGaps() const
{
#ifdef __SANITIZE_ADDRESS__
    return true;
#else
    return static_cast<double>(m_gaps.usualMs()) <= TestSupport::UsualGapMs;
#endif
}

void FaultRun::repeat(int number, const std::function<void(Injection&)>& inject)
{
    Injection injection(m_seed, number);
    inject(injection);
    m_gaps.add(injection.gaps());
    const qint64 gapMs = injection.gaps().isEmpty() ? -1 : injection.gaps().longestMs();
    m_report({{QStringLiteral("number"), number},
              {QStringLiteral("injections"), injection.injections()},
              {QStringLiteral("signals"), injection.signalCount()},
              {QStringLiteral("gapMs"), gapMs},
              {QStringLiteral("failures"), QJsonArray::fromStringList(injection.failures())}});
}

bool FaultRun::strikes(int number, Step step) const
{
    const std::vector<Step>& steps = m_fault.steps;
    if (m_fault.where == Fault::Where::OneStep) {
        return steps[static_cast<std::size_t>(number) % steps.size()] == step;
    }
    return std::count(steps.begin(), steps.end(), step) != 0;
}

void FaultRun::runDialog(int repetitions)
{
    const bool isScripted = m_fault.needs == Fault::Needs::Scripted;
    const std::unique_ptr<DeviceRig> rig = isScripted ? nullptr : std::make_unique<DeviceRig>();
    if (rig && !rig->start()) {
        repeat(-1, [](Injection& injection) {
            injection.fail(QStringLiteral("the servers of the test don't start"));
        });
        return;
    }
    const auto check = [&](Injection& injection, const CheckRun::AtStep& atStep) {
        CheckRun run(injection, rig.get());
        run.run(isScripted ? ScriptedFaults::scenario() : QByteArray(), atStep);
    };
    // Libraries keep some threads and files after their first use: these aren't counted as lost.
    repeat(-1, [&check](Injection& injection) { check(injection, [](CheckRun&, Step) {}); });
    const int streamsBefore = rig ? rig->streams() : 0;
    const Holdings before = Holdings::now();
    for (int i = 0; i < repetitions; ++i) {
        repeat(i, [&](Injection& injection) {
            check(injection, [&](CheckRun& run, Step step) {
                if (strikes(i, step)) {
                    injection.count(1);
                    m_fault.atStep(run, step);
                }
            });
            const QString held = Holdings::problemAgainst(before);
            injection.require(held.isEmpty(), held);
            const int streams = rig ? rig->streams() : 0;
            injection.require(streams == streamsBefore,
                              QStringLiteral("%1 streams instead of %2")
                                  .arg(QString::number(streams), QString::number(streamsBefore)));
        });
    }
}
