// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/FaultRun.h"

#include "tests/campaign/CheckRun.h"
#include "tests/campaign/DeviceRig.h"
#include "tests/campaign/Fault.h"
#include "tests/campaign/FaultProcess.h"
#include "tests/campaign/Holdings.h"
#include "tests/campaign/ScriptedFaults.h"

#include <QJsonArray>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

bool strikes(const Fault& fault, int number, Step step)
{
    const std::vector<Step>& steps = fault.steps;
    if (fault.where == Fault::Where::OneStep) {
        return steps[static_cast<std::size_t>(number) % steps.size()] == step;
    }
    return std::count(steps.begin(), steps.end(), step) != 0;
}

QStringList problemsOf(const TestSupport::GapCount& gaps)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr bool IsJudged = false;
#else
    constexpr bool IsJudged = true;
#endif
    const bool areUsual = static_cast<double>(gaps.usualMs()) <= TestSupport::UsualGapMs;
    return areUsual || !IsJudged
               ? QStringList()
               : QStringList{QStringLiteral("more than 1 of 100 gaps is longer than 16.7 ms")};
}

} // namespace

FaultRun::FaultRun(std::vector<const Fault*> faults, quint32 seed, Report report)
    : m_faults(std::move(faults)), m_seed(seed), m_report(std::move(report))
{
}

void FaultRun::run(int repetitions)
{
    if (m_faults.front()->atStep) {
        runDialogs(repetitions);
        return;
    }
    repeatAll(repetitions,
              [this](const Fault& fault, int number) { repeat(fault, number, fault.whole); });
}

void FaultRun::repeatAll(int repetitions, const Checker& check)
{
    for (const Fault* fault : m_faults) {
        const int count = FaultProcess::repetitionsOf(*fault, repetitions);
        for (int i = 0; i < count; ++i) {
            check(*fault, i);
        }
        finish(*fault);
    }
}

void FaultRun::finish(const Fault& fault)
{
    m_report({{FaultProcess::FaultKey, QLatin1String(fault.name)},
              {FaultProcess::DoneKey, true},
              {QStringLiteral("gapMs"), -1},
              {QStringLiteral("failures"), QJsonArray::fromStringList(problemsOf(m_gaps))}});
    m_gaps = {};
}

void FaultRun::repeat(const Fault& fault, int number, const std::function<void(Injection&)>& inject)
{
    Injection injection(m_seed, number);
    inject(injection);
    m_gaps.add(injection.gaps());
    const qint64 gapMs = injection.gaps().isEmpty() ? -1 : injection.gaps().longestMs();
    m_report({{FaultProcess::FaultKey, QLatin1String(fault.name)},
              {QStringLiteral("number"), number},
              {QStringLiteral("injections"), injection.injections()},
              {QStringLiteral("signals"), injection.signalCount()},
              {QStringLiteral("gapMs"), gapMs},
              {QStringLiteral("failures"), QJsonArray::fromStringList(injection.failures())}});
}

void FaultRun::runDialogs(int repetitions)
{
    const Fault& first = *m_faults.front();
    const bool isScripted = first.needs == Fault::Needs::Scripted;
    const std::unique_ptr<DeviceRig> rig = isScripted ? nullptr : std::make_unique<DeviceRig>();
    if (rig && !rig->start()) {
        repeat(first, -1, [](Injection& injection) {
            injection.fail(QStringLiteral("the servers of the test don't start"));
        });
        return;
    }
    const auto check = [&](Injection& injection, const CheckRun::AtStep& atStep) {
        CheckRun run(injection, rig.get());
        run.run(isScripted ? ScriptedFaults::scenario() : QByteArray(), atStep);
    };
    // Libraries keep some threads and files after their first use: these aren't counted as lost.
    repeat(first, -1, [&check](Injection& injection) { check(injection, [](CheckRun&, Step) {}); });
    const int streamsBefore = rig ? rig->streams() : 0;
    const Holdings before = Holdings::now();
    repeatAll(repetitions, [&](const Fault& fault, int i) {
        repeat(fault, i, [&](Injection& injection) {
            check(injection, [&](CheckRun& run, Step step) {
                if (strikes(fault, i, step)) {
                    injection.count(1);
                    fault.atStep(run, step);
                }
            });
            const QString held = Holdings::problemAgainst(before);
            injection.require(held.isEmpty(), held);
            const int streams = rig ? rig->streams() : 0;
            injection.require(streams == streamsBefore,
                              QStringLiteral("%1 streams instead of %2")
                                  .arg(QString::number(streams), QString::number(streamsBefore)));
        });
    });
}
