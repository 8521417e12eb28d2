// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>
#include <QStringList>

namespace Platform {

// What Qt and the system tell of the machine. Thread-safe; availableBytes() waits
// for the disk.
namespace MachineFacts {

CLASSROOMBACKEND_EXPORT QStringList operatingSystem(); // name with version, then architecture
// The model as the system names it, otherwise the architecture.
#ifdef Q_OS_WIN
CLASSROOMBACKEND_EXPORT QString processorName();
#else
CLASSROOMBACKEND_EXPORT QString
processorName(const QString& cpuInfoPath = QStringLiteral("/proc/cpuinfo"));
#endif
// What this user may still write on the folder's volume; the folder need not exist yet. -1 where it
// can't be read.
CLASSROOMBACKEND_EXPORT qint64 availableBytes(const QString& folder);

} // namespace MachineFacts
} // namespace Platform
