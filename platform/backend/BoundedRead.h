// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QFile>

namespace Platform {

// Reads an open file to its end. Returns nothing, or why content is empty. It takes memory for what
// there is, not for what there may be.
inline QString readBounded(QFile& file, qint64 maxBytes, QByteArray* content)
{
    constexpr qint64 ChunkBytes = 65536;
    content->clear();
    for (QByteArray chunk = file.read(ChunkBytes); !chunk.isEmpty();
         chunk = file.read(ChunkBytes)) {
        *content += chunk;
        if (content->size() > maxBytes) {
            content->clear();
            return qtTrId("ID_Engine_File_TooLarge").arg(maxBytes / 1024 / 1024);
        }
    }
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

} // namespace Platform
