// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "CapturedOutput.h"

#include <QFile>

#include <cstdio>
#include <unistd.h>

CapturedOutput::CapturedOutput(const QString& path) : m_path(path)
{
    std::fflush(stdout);
    m_terminal = dup(STDOUT_FILENO);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        dup2(file.handle(), STDOUT_FILENO);
    }
}

CapturedOutput::~CapturedOutput()
{
    text();
}

QString CapturedOutput::text()
{
    if (m_terminal >= 0) {
        std::fflush(stdout);
        dup2(m_terminal, STDOUT_FILENO);
        close(m_terminal);
        m_terminal = -1;
    }
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
