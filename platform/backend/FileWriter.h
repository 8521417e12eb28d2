// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QString>
#include <functional>

namespace Platform {

// Writes files on one worker thread, in order, and each whole or not at all. No caller waits for
// the disk. Thread-safe.
namespace FileWriter {

// How long the worker waits for a lock that another program holds.
constexpr int LockTimeoutMs = 2000;

// Makes the new content from the present one, which is empty if there is no file. Called on the
// worker thread while it holds the lock of the file.
using Transform = std::function<QByteArray(const QByteArray& present)>;

// Replaces the content by the result of transform. If that fails, the file stays as it was, and one
// warning names the file and the reason.
CLASSROOMBACKEND_EXPORT void update(const QString& path, Transform transform);
CLASSROOMBACKEND_EXPORT void replace(const QString& path, const QByteArray& content);

// Runs any other job after everything queued so far.
CLASSROOMBACKEND_EXPORT void enqueue(std::function<void()> job);

// Waits until everything queued is written; false after timeoutMs. For the end of the program and
// for tests, not for a dialog.
CLASSROOMBACKEND_EXPORT bool waitForWritten(int timeoutMs);

} // namespace FileWriter
} // namespace Platform
