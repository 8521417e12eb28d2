// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace Platform {

// Writes files on one worker thread, each whole or not at all (WholeFile). No caller waits for the
// disk. What waits for one path becomes one write: the newest content wins. Thread-safe.
namespace FileWriter {

// How long the worker waits for a lock that another program holds.
constexpr int LockTimeoutMs = 2000;
// More changes of one path don't wait: they fail.
constexpr int MaxChanges = 1000;

// Makes the new content from the present one, which is empty if there is no file. Called on the
// worker thread while it holds the lock of the file. Nothing: the file stays as it is.
using Transform = std::function<std::optional<QByteArray>(const QByteArray& present)>;
// Called once, on the worker thread: empty if the content, or newer content, is in the file.
using Done = std::function<void(const QString& problem)>;

// Replaces the content by the result of transform. If that fails, the file stays as it was. Without
// done, one warning names the file and the reason.
CLASSROOMBACKEND_EXPORT void update(const QString& path, Transform transform, Done done = {});
// Replaces whatever there is, and drops what waits for this path. Takes no lock.
CLASSROOMBACKEND_EXPORT void replace(const QString& path, const QByteArray& content,
                                     Done done = {});
// Removes the file, and drops what waits for it.
CLASSROOMBACKEND_EXPORT void remove(const QString& path);

// Runs any other job after everything queued so far.
CLASSROOMBACKEND_EXPORT void enqueue(std::function<void()> job);

// The three functions below are for the end of the program and for tests, not for a dialog.

// Replaces before everything else that waits, and waits for it. Returns nothing, or the reason.
CLASSROOMBACKEND_EXPORT QString replaceNow(const QString& path, const QByteArray& content,
                                           int timeoutMs);
// Waits until everything queued is written; false after timeoutMs. What the disk doesn't take by
// then is left behind: nothing ever waits for the worker itself.
CLASSROOMBACKEND_EXPORT bool waitForWritten(int timeoutMs);

// What became of everything that has no done.
struct Outcome
{
    QStringList waiting; // paths that are not written yet
    QStringList failed;  // paths whose last try failed; a warning has named the reason
};
CLASSROOMBACKEND_EXPORT Outcome outcome();

} // namespace FileWriter
} // namespace Platform
