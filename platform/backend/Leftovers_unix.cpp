// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/Leftovers.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr std::string_view Prefix = ".envcheck-";
constexpr std::string_view RandomPart = "XXXXXX";
constexpr int MaxNames = 10000; // that are looked at in a folder
constexpr int MaxFiles = 100;   // that are removed from a folder

struct FolderCloser
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, FolderCloser>;

bool isNameOfOurs(std::string_view name)
{
    return name.size() == Prefix.size() + RandomPart.size() &&
           name.substr(0, Prefix.size()) == Prefix &&
           std::all_of(name.begin() + Prefix.size(), name.end(),
                       [](unsigned char each) { return std::isalnum(each) != 0; });
}

bool isOfThisUser(const struct stat& status)
{
    return status.st_uid == ::geteuid() && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
}

// Nothing but files is expected in a folder of ours. If there is more, it stays.
void removeFolder(int parent, const char* name, int descriptor)
{
    const int copy = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    const Folder folder(copy < 0 ? nullptr : ::fdopendir(copy));
    if (!folder) {
        if (copy >= 0) {
            ::close(copy);
        }
        return;
    }
    for (int i = 0; i < MaxFiles; ++i) {
        const dirent* const entry = ::readdir(folder.get());
        if (!entry) {
            break;
        }
        ::unlinkat(descriptor, entry->d_name, 0);
    }
    ::unlinkat(parent, name, AT_REMOVEDIR);
}

void removeIfLeft(int parent, const char* name)
{
    struct stat named = {};
    if (::fstatat(parent, name, &named, AT_SYMLINK_NOFOLLOW) != 0 || !isOfThisUser(named)) {
        return;
    }
    // Some file systems lock only what is open for writing, and folders never are.
    const int access = S_ISDIR(named.st_mode) ? O_RDONLY | O_DIRECTORY : O_RDWR | O_NONBLOCK;
    const int descriptor = ::openat(parent, name, access | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    struct stat opened = {};
    if (::fstat(descriptor, &opened) == 0 && opened.st_ino == named.st_ino &&
        opened.st_dev == named.st_dev && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        if (S_ISDIR(opened.st_mode)) {
            removeFolder(parent, name, descriptor);
        } else {
            ::unlinkat(parent, name, 0);
        }
    }
    ::close(descriptor);
}

} // namespace

QByteArray Leftovers::nameIn(const QByteArray& folder)
{
    QByteArray name = folder + '/';
    name.append(Prefix.data(), int(Prefix.size()));
    return name.append(RandomPart.data(), int(RandomPart.size()));
}

// A file system without locks is no reason not to write; there, nothing is ever removed.
bool Leftovers::claim(int descriptor)
{
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        return errno != EWOULDBLOCK;
    }
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

void Leftovers::removeFrom(const QByteArray& folder)
{
    const Folder opened(::opendir(folder.constData()));
    if (!opened) {
        return;
    }
    int found = 0;
    for (int i = 0; i < MaxNames && found < MaxFiles; ++i) {
        const dirent* const entry = ::readdir(opened.get());
        if (!entry) {
            return;
        }
        if (isNameOfOurs(entry->d_name)) {
            ++found;
            removeIfLeft(::dirfd(opened.get()), entry->d_name);
        }
    }
}

} // namespace Platform
