// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <functional>

namespace TestSupport {

#ifndef Q_OS_WIN
// How long, since its construction, the threads of this process and of its child processes were
// ready to run but had to wait for a processor, and how long other virtual machines had the
// processors of this one. Both are sums, as the kernel counts them. On an idle machine they are
// close to zero.
class MachineDelay
{
public:
    MachineDelay() : m_before(milliseconds()), m_stolenMsBefore(stolenMs()) {}

    qint64 ms() const;

private:
    static QHash<QString, qint64> milliseconds(); // of each thread since its start
    static qint64 stolenMs();                     // since the machine's start

    QHash<QString, qint64> m_before;
    qint64 m_stolenMsBefore;
};
#endif

// Runs a measurement in real time, which returns what is wrong or an empty text. If it finds a
// fault while threads waited longer than sound can bear, it is repeated, at most a few times. Under
// Wine, which doesn't tell that, it always is.
QString measuredFault(const std::function<QString()>& measure);

} // namespace TestSupport
