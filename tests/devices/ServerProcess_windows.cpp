// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/ServerProcess.h"
#include "tests/support/NativeProgram.h"

class ServerProcess::System
{
public:
    NativeProgram program;
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
    kill();
    return m_system->program.start(program, options);
}

bool ServerProcess::isRunning() const
{
    return m_system->program.isRunning();
}

void ServerProcess::kill()
{
    if (isRunning()) {
        m_system->program.order("kill", "ended");
        m_system->program.end();
    }
}
