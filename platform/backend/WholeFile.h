// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QString>

namespace Platform {

// Files that are read and written as a whole. They belong to the user alone: nobody else may read
// them, from their first byte (on Windows: as the folder says). All functions wait for the disk,
// but for no other program: a named pipe or a device is refused. Thread-safe.
namespace WholeFile {

constexpr qint64 MaxBytes = qint64(16) * 1024 * 1024;

// Why the path can't be read or written; empty if it can, or if there is nothing yet. A link is
// followed if it belongs to the user or to root: another user's may lead anywhere.
CLASSROOMBACKEND_EXPORT QString problem(const QString& path);

// Both return nothing, or the reason. A file that isn't there is empty.
CLASSROOMBACKEND_EXPORT QString read(const QString& path, QByteArray* content,
                                     qint64 maxBytes = MaxBytes);
// Writes a new file beside the path, and gives it this name. If that fails, the path stays as it
// was.
CLASSROOMBACKEND_EXPORT QString write(const QString& path, const QByteArray& content);

// Makes the folder and those above it that are missing.
CLASSROOMBACKEND_EXPORT bool makeFolder(const QString& path);

} // namespace WholeFile
} // namespace Platform
