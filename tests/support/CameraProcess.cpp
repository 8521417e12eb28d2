// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/support/CameraProcess.h"

#include <QCoreApplication>
#include <csignal>

namespace TestSupport {

CameraProcess::CameraProcess(const QString& name, const QString& description,
                             const QStringList& moreArguments)
{
    start(
        QCoreApplication::applicationDirPath() + QStringLiteral("/virtual_camera"),
        QStringList{QStringLiteral("--name"), name, QStringLiteral("--description"), description} +
            moreArguments);
    waitForStarted();
}

CameraProcess::~CameraProcess() = default;

QByteArray CameraProcess::output()
{
    m_output += readAll();
    return m_output;
}

void CameraProcess::command(const QByteArray& line)
{
    write(line + '\n');
    waitForBytesWritten();
}

void CameraProcess::kill()
{
    sendSignal(SIGKILL);
    waitForFinished();
}

} // namespace TestSupport
