// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundFile.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

// O_NONBLOCK: opening a pipe without a writer must not wait.
int Platform::SoundFile::openFile(const QString& path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

long long Platform::SoundFile::sizeOf(int descriptor)
{
    struct stat facts = {};
    if (::fstat(descriptor, &facts) != 0) {
        return -1;
    }
    return S_ISREG(facts.st_mode) ? facts.st_size : NotRegular;
}
