// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/BusyMeter.h"

#include <QFile>

BusyMeter::BusyMeter() : m_before(waitedUs())
{
    m_clock.start();
}

double BusyMeter::share() const
{
    const qint64 now = waitedUs();
    if (m_before < 0 || now < 0) {
        return qQNaN();
    }
    const double passedUs = static_cast<double>(m_clock.nsecsElapsed()) * 1e-3;
    return qMin(1.0, static_cast<double>(now - m_before) / qMax(1.0, passedUs));
}

qint64 BusyMeter::waitedUs()
{
    QFile file(QStringLiteral("/proc/pressure/cpu"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray line = file.readLine(); // "some avg10=... total=MICROSECONDS"
    const int at = line.indexOf("total=");
    return at < 0 ? -1 : line.mid(at + 6).trimmed().toLongLong();
}
