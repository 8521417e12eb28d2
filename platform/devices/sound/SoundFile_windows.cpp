// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundFile.h"

#include <QDir>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

int Platform::SoundFile::openFile(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    return ::_wopen(reinterpret_cast<const wchar_t*>(native.utf16()),
                    _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

long long Platform::SoundFile::sizeOf(int descriptor)
{
    struct _stati64 facts = {};
    if (::_fstati64(descriptor, &facts) != 0) {
        return -1;
    }
    return (facts.st_mode & _S_IFMT) == _S_IFREG ? facts.st_size : NotRegular;
}
