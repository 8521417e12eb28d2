// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/WholeFile.h"

#include "platform/backend/BoundedRead.h"
#include "platform/backend/Leftovers.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Platform {

namespace {

constexpr mode_t OwnersFolder = 0700;
constexpr int Attempts = 3; // another program may take a new file for a leftover

// An open file, closed at the end of its scope.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

QString lastError()
{
    return qt_error_string(errno);
}

bool writeAll(int file, const QByteArray& content)
{
    int done = 0;
    while (done < content.size()) {
        const ssize_t written =
            ::write(file, content.constData() + done, static_cast<size_t>(content.size() - done));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        done += static_cast<int>(std::max<ssize_t>(written, 0));
    }
    return true;
}

// The name is new (O_EXCL), so it is no link that somebody has put there; its mode is 0600.
int openNew(QByteArray* name, const QByteArray& folder)
{
    for (int i = 0; i < Attempts; ++i) {
        *name = Leftovers::nameIn(folder);
        const int file = ::mkostemp(name->data(), O_CLOEXEC);
        if (file < 0 || Leftovers::claim(file)) {
            return file;
        }
        ::close(file);
    }
    errno = EBUSY;
    return -1;
}

// Why not; empty if the target has the new content.
QString replace(const QByteArray& target, const QByteArray& folder, const QByteArray& content)
{
    QByteArray name;
    Descriptor file(openNew(&name, folder));
    if (!file.isOpen()) {
        return lastError();
    }
    // close() may tell of a failed write, but the lock stays until the file has its name.
    const Descriptor lock(::fcntl(file.number(), F_DUPFD_CLOEXEC, 0));
    const bool isWritten = lock.isOpen() && writeAll(file.number(), content) &&
                           ::fdatasync(file.number()) == 0 && file.close() &&
                           std::rename(name.constData(), target.constData()) == 0;
    if (isWritten) {
        return {};
    }
    const QString reason = lastError();
    ::unlink(name.constData());
    return reason;
}

// The file itself, behind links.
QString targetOf(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? QFileInfo(path).absoluteFilePath() : target;
}

} // namespace

QString WholeFile::problem(const QString& path)
{
    struct stat link = {};
    if (::lstat(QFile::encodeName(path).constData(), &link) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? QString() : lastError();
    }
    if (S_ISLNK(link.st_mode) && link.st_uid != geteuid() && link.st_uid != 0) {
        return qtTrId("ID_Engine_File_ForeignLink");
    }
    struct stat file = {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0) {
        return errno == ENOENT ? qtTrId("ID_Engine_File_DeadLink") : lastError();
    }
    return S_ISREG(file.st_mode) ? QString() : qtTrId("ID_Engine_File_NotRegular");
}

QString WholeFile::read(const QString& path, QByteArray* content, qint64 maxBytes)
{
    content->clear();
    const QString wrong = problem(path);
    if (!wrong.isEmpty()) {
        return wrong;
    }
    // Doesn't wait for the writer of a pipe that has come in between.
    const Descriptor opened(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!opened.isOpen()) {
        return errno == ENOENT || errno == ENOTDIR ? QString() : lastError();
    }
    QFile file;
    if (!file.open(opened.number(), QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return readBounded(file, maxBytes, content);
}

QString WholeFile::write(const QString& path, const QByteArray& content)
{
    const QString wrong = problem(path);
    if (!wrong.isEmpty()) {
        return wrong;
    }
    const QByteArray target = QFile::encodeName(targetOf(path));
    const QByteArray folder = QFile::encodeName(QFileInfo(targetOf(path)).absolutePath());
    const QString reason = replace(target, folder, content);
    Leftovers::removeFrom(folder);
    return reason;
}

bool WholeFile::makeFolder(const QString& path)
{
    if (QFileInfo(path).isDir()) {
        return true;
    }
    const QString above = QFileInfo(path).absolutePath();
    if (above == path || !makeFolder(above)) {
        return false;
    }
    return ::mkdir(QFile::encodeName(path).constData(), OwnersFolder) == 0 ||
           QFileInfo(path).isDir(); // another program may have made it meanwhile
}

} // namespace Platform
