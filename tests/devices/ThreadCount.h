// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
int threadCount(const char* name); // of this process; ThreadCount_windows.cpp
#else
#include <QDir>
#include <QFile>

// The threads of this process with that name, as the kernel counts them.
inline int threadCount(const char* name)
{
    int count = 0;
    const QDir tasks(QStringLiteral("/proc/self/task"));
    const QStringList ids = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& id : ids) {
        QFile file(tasks.filePath(id + QStringLiteral("/comm")));
        count += file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == name ? 1 : 0;
    }
    return count;
}
#endif
