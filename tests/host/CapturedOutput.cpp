// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "CapturedOutput.h"

#include <QFile>

#include <unistd.h>

CapturedOutput::CapturedOutput(const QString& path, std::FILE* stream)
    : m_path(path), m_stream(stream)
{
    std::fflush(m_stream);
    m_terminal = dup(fileno(m_stream));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        dup2(file.handle(), fileno(m_stream));
    }
}

CapturedOutput::~CapturedOutput()
{
    text();
}

QString CapturedOutput::text()
{
    if (m_terminal >= 0) {
        std::fflush(m_stream);
        dup2(m_terminal, fileno(m_stream));
        close(m_terminal);
        m_terminal = -1;
    }
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
