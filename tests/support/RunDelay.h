// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QList>

namespace TestSupport {

// How long a thread, unless told otherwise the one that made this, has been ready to run without a
// processor since it began: the second figure of the kernel's schedstat.
class RunDelay
{
public:
    explicit RunDelay(const QString& thread = QStringLiteral("/proc/thread-self"))
        : m_file(thread + QStringLiteral("/schedstat"))
    {
#ifndef Q_OS_WIN // Wine would show a thread of its server
        m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
#endif
    }

    // 0 where the kernel keeps no such figures, or the thread is over.
    qint64 totalMs()
    {
        constexpr qint64 NsPerMs = 1000000;
        if (!m_file.isOpen()) {
            return 0;
        }
        m_file.seek(0);
        return m_file.readAll().split(' ').value(1).toLongLong() / NsPerMs;
    }

private:
    QFile m_file;
};

} // namespace TestSupport
