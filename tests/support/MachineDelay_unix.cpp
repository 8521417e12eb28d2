// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/MachineDelay.h"

#include "tests/support/RunDelay.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr int Attempts = 3;
constexpr qint64 BearableMs = 20; // one cycle of a sound server

} // namespace

qint64 MachineDelay::ms() const
{
    const QHash<QString, qint64> now = milliseconds();
    qint64 result = stolenMs() - m_stolenMsBefore;
    for (auto thread = now.cbegin(); thread != now.cend(); ++thread) {
        result += thread.value() - m_before.value(thread.key());
    }
    return result;
}

QHash<QString, qint64> MachineDelay::milliseconds()
{
    QHash<QString, qint64> result;
    QList<QByteArray> processes{QByteArray::number(QCoreApplication::applicationPid())};
    for (int i = 0; i < processes.size(); ++i) {
        const QString threads =
            QStringLiteral("/proc/%1/task/").arg(QString::fromLatin1(processes[i]));
        const QStringList ids = QDir(threads).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& id : ids) {
            result.insert(id, RunDelay(threads + id).totalMs());
            QFile children(threads + id + QStringLiteral("/children"));
            if (children.open(QIODevice::ReadOnly)) {
                const QByteArray list = children.readAll().simplified();
                processes += list.isEmpty() ? QList<QByteArray>() : list.split(' ');
            }
        }
    }
    return result;
}

// The eighth figure of the first line: "cpu", user, nice, system, idle, iowait, irq, softirq,
// steal.
qint64 MachineDelay::stolenMs()
{
    constexpr int Steal = 8;
    const qint64 ticksPerSecond = sysconf(_SC_CLK_TCK);
    QFile file(QStringLiteral("/proc/stat"));
    if (!file.open(QIODevice::ReadOnly) || ticksPerSecond <= 0) {
        return 0;
    }
    const QList<QByteArray> figures = file.readLine().simplified().split(' ');
    return 1000 * figures.value(Steal).toLongLong() / ticksPerSecond;
}

QString measuredFault(const std::function<QString()>& measure)
{
    QString fault;
    bool isExcused = true;
    for (int attempt = 0; attempt < Attempts && isExcused; ++attempt) {
        const MachineDelay delay;
        fault = measure();
        isExcused = !fault.isEmpty() && delay.ms() > BearableMs;
        if (isExcused) {
            qInfo("%s, while threads waited %lld ms for a processor", qPrintable(fault),
                  delay.ms());
        }
    }
    return fault;
}

} // namespace TestSupport
