// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

// The threads of this process, as the kernel counts them.
inline int threadCount()
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    return int(tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}
