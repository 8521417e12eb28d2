// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/sound/SoundFile.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Platform {

SoundFile::SoundFile(const QString& path, long long maxBytes) : m_descriptor(openFile(path))
{
    const long long size = m_descriptor < 0 ? -1 : sizeOf(m_descriptor);
    if (size == NotRegular) {
        m_refusal = QStringLiteral("it is not a regular file");
    } else if (size < 0) {
        m_refusal = QString::fromLocal8Bit(std::strerror(errno));
    } else if (size > maxBytes) {
        m_refusal = QStringLiteral("it is larger than %1 bytes").arg(maxBytes);
    }
}

SoundFile::~SoundFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace Platform
