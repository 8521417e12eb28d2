// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <functional>

namespace TestSupport {

// How long, since its construction, the threads of this process and of its child processes were
// ready to run but had to wait for a processor. This is the sum over all threads, as the kernel
// counts it. On an idle machine it is close to zero.
class MachineDelay
{
public:
    MachineDelay() : m_before(milliseconds()) {}

    qint64 ms() const;

private:
    static QHash<QString, qint64> milliseconds(); // of each thread since its start

    QHash<QString, qint64> m_before;
};

// Runs a measurement in real time, which returns what is wrong or an empty text. If it finds a
// fault while threads waited longer than sound can bear, it is repeated, at most a few times.
QString measuredFault(const std::function<QString()>& measure);

} // namespace TestSupport
