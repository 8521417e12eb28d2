// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <functional>

namespace TestSupport {

// How long the threads of this process and of its helper programs were ready to run and had to wait
// for a processor since it was made, all together, as the kernel counts it. On a machine that is at
// rest that is next to nothing.
class MachineDelay
{
public:
    MachineDelay() : m_before(milliseconds()) {}

    qint64 ms() const;

private:
    static QHash<QString, qint64> milliseconds(); // of each thread, in all its life

    QHash<QString, qint64> m_before;
};

// What is wrong by a measurement in real time, empty where nothing is. One that finds a fault while
// threads were held up for longer than sound can bear is done again, a few times at the most.
QString measuredFault(const std::function<QString()>& measure);

} // namespace TestSupport
