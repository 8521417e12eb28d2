// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/RealTimePriority.h"

#include <QDir>
#include <sched.h>

namespace TestSupport {

namespace {

constexpr int Priority = 5; // rtkit's limit is 20

void give(pid_t thread)
{
    sched_param parameters{};
    parameters.sched_priority = Priority;
    sched_setscheduler(thread, SCHED_RR, &parameters);
}

} // namespace

void giveRealTimePriority(qint64 processId)
{
    const QDir threads(QStringLiteral("/proc/%1/task").arg(processId));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        give(thread.toInt());
    }
}

void giveThisThreadRealTimePriority()
{
    give(0);
}

} // namespace TestSupport
