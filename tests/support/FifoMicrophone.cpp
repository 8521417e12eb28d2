// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/FifoMicrophone.h"

#include "tests/support/SoundRecording.h"

#include <QFile>
#include <fcntl.h>
#include <unistd.h>

namespace TestSupport {

FifoMicrophone::FifoMicrophone(SoundServer& server, const QString& name)
{
    const QString path = m_folder.filePath(name);
    server.control({QStringLiteral("load-module"), QStringLiteral("module-pipe-source"),
                    QStringLiteral("source_name=%1").arg(name), QStringLiteral("file=%1").arg(path),
                    QStringLiteral("format=float32le"),
                    QStringLiteral("rate=%1").arg(SoundRecording::Rate),
                    QStringLiteral("channels=1")});
    // Open for reading too, it breaks for nobody when the server ends.
    m_fifo = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
}

FifoMicrophone::~FifoMicrophone()
{
    if (m_fifo >= 0) {
        ::close(m_fifo);
    }
}

void FifoMicrophone::hear(const float* piece)
{
    // As much is written whole or not at all; what the server doesn't take in time is lost.
    [[maybe_unused]] const ssize_t written = ::write(m_fifo, piece, PieceSize * sizeof(float));
}

} // namespace TestSupport
