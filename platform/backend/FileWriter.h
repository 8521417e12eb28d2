// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QString>
#include <functional>

namespace Platform {

// Writes files on one worker thread, in order, whole or not at all, so that no caller waits for a
// disk. Thread-safe.
namespace FileWriter {

// How long a foreign lock on a file is waited for, by the worker.
constexpr int LockTimeoutMs = 2000;

// Makes the new content from the present one (empty where there is no file). Called on the worker
// with the file's lock held.
using Transform = std::function<QByteArray(const QByteArray& present)>;

// Replaces the file by what transform makes of it. A failure is logged as one warning that names
// the file and the reason, and leaves the file as it was.
CLASSROOMBACKEND_EXPORT void update(const QString& path, Transform transform);
CLASSROOMBACKEND_EXPORT void replace(const QString& path, const QByteArray& content);

// Runs a job of another kind behind what was queued before.
CLASSROOMBACKEND_EXPORT void enqueue(std::function<void()> job);

// Waits until all that was queued is written, at most timeoutMs; false when it wasn't. For the end
// of a program and for tests, not for a dialog.
CLASSROOMBACKEND_EXPORT bool waitForWritten(int timeoutMs);

} // namespace FileWriter
} // namespace Platform
