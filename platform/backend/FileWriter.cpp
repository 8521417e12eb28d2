// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/FileWriter.h"

#include "platform/backend/FileNames.h"
#include "platform/backend/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRunnable>
#include <QSaveFile>
#include <QThreadPool>

namespace Platform {

namespace {

constexpr int IdleThreadMs = 200;
constexpr qint64 MaxPresentBytes = qint64(16) * 1024 * 1024;

class WriterPool : public QThreadPool
{
public:
    WriterPool()
    {
        setMaxThreadCount(1); // keeps the order
        setExpiryTimeout(IdleThreadMs);
    }
};

QThreadPool& pool()
{
    static WriterPool thePool;
    return thePool;
}

// Empty on success, otherwise what went wrong.
QString updateNow(const QString& path, const FileWriter::Transform& transform)
{
    const QString problem = FileNames::problem(path);
    if (!problem.isEmpty()) {
        return problem;
    }
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        return QStringLiteral("it is not a regular file");
    }
    if (!QDir().mkpath(info.absolutePath())) {
        return QStringLiteral("its folder can't be created");
    }
    QLockFile lock(path + QStringLiteral(".lock"));
    if (!lock.tryLock(FileWriter::LockTimeoutMs)) {
        return lock.error() == QLockFile::LockFailedError
                   ? QStringLiteral("another program holds its lock file %1.lock").arg(path)
                   : QStringLiteral("its lock file can't be created");
    }
    QByteArray present;
    if (info.exists()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return file.errorString();
        }
        present = file.read(MaxPresentBytes + 1);
        if (present.size() > MaxPresentBytes) {
            return QStringLiteral("it is larger than %1 MiB").arg(MaxPresentBytes / 1024 / 1024);
        }
    }
    const QByteArray content = transform(present);
    QSaveFile file(path);
    // commit() doesn't report errors of the last buffered bytes; flush() does.
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() || !file.commit()) {
        return file.errorString();
    }
    return {};
}

} // namespace

void FileWriter::update(const QString& path, Transform transform)
{
    enqueue([path, transform = std::move(transform)] {
        const QString problem = updateNow(path, transform);
        if (!problem.isEmpty()) {
            qCWarning(Log::files).noquote() << "Not written:" << path << "-" << problem;
        }
    });
}

void FileWriter::replace(const QString& path, const QByteArray& content)
{
    update(path, [content](const QByteArray&) { return content; });
}

void FileWriter::enqueue(std::function<void()> job)
{
    pool().start(QRunnable::create(std::move(job)));
}

bool FileWriter::waitForWritten(int timeoutMs)
{
    return pool().waitForDone(timeoutMs);
}

} // namespace Platform
