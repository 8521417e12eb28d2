// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ServerProcess.h"

#include <QProcess>
#include <QTemporaryDir>

class ServerProcess::System
{
public:
    QTemporaryDir folder;
    QProcess process;
};

ServerProcess::ServerProcess() : m_system(std::make_unique<System>())
{
}

ServerProcess::~ServerProcess()
{
    kill();
}

bool ServerProcess::start(const QString& program, const QStringList& options)
{
    QProcess& process = m_system->process;
    process.setWorkingDirectory(m_system->folder.path());
    process.setStandardOutputFile(m_system->folder.filePath(QStringLiteral("log")));
    process.setStandardErrorFile(m_system->folder.filePath(QStringLiteral("errors")));
    process.start(program, options);
    return process.waitForStarted();
}

bool ServerProcess::isRunning() const
{
    return m_system->process.state() == QProcess::Running;
}

void ServerProcess::kill()
{
    m_system->process.kill();
    m_system->process.waitForFinished();
}
