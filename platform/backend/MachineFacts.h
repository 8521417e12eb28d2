// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>
#include <QStringList>

namespace Platform {

// What Qt and the system know about the machine. Thread-safe; availableBytes() waits for the disk.
namespace MachineFacts {

CLASSROOMBACKEND_EXPORT QStringList operatingSystem(); // name with version, then architecture
// The model as the system names it, or the architecture if it names none.
#ifdef Q_OS_WIN
CLASSROOMBACKEND_EXPORT QString processorName();
#else
CLASSROOMBACKEND_EXPORT QString
processorName(const QString& cpuInfoPath = QStringLiteral("/proc/cpuinfo"));
#endif
// The space left for this user on the volume of the folder, which may not exist yet. -1 if the
// system doesn't say.
CLASSROOMBACKEND_EXPORT qint64 availableBytes(const QString& folder);

} // namespace MachineFacts
} // namespace Platform
