// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Holdings.h"

#include "tests/support/ProcessResources.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {

constexpr int PatienceMs = 5000;

int childProcesses()
{
    int count = 0;
    const QStringList threads =
        QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads) {
        QFile children(QStringLiteral("/proc/self/task/%1/children").arg(thread));
        if (children.open(QIODevice::ReadOnly)) {
            const QByteArray list = children.readAll().simplified();
            count += list.isEmpty() ? 0 : list.count(' ') + 1;
        }
    }
    return count;
}

QString difference(const char* what, int before, int now)
{
    return now > before ? QStringLiteral("%1 more %2; ")
                              .arg(QString::number(now - before), QLatin1String(what))
                        : QString();
}

} // namespace

Holdings Holdings::now()
{
    return {QApplication::topLevelWidgets().size(), ProcessResources::threads(),
            ProcessResources::openHandles(), childProcesses()};
}

QString Holdings::problemAgainst(const Holdings& before)
{
    QString problem;
    const bool isBack = QTest::qWaitFor(
        [&] {
            const Holdings held = now();
            problem = difference("windows", before.windows, held.windows) +
                      difference("threads", before.threads, held.threads) +
                      difference("descriptors", before.descriptors, held.descriptors) +
                      difference("child processes", before.children, held.children);
            return problem.isEmpty();
        },
        PatienceMs);
    return isBack ? QString() : problem;
}
