// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <memory>

// A native server, started in a folder of its own that goes with it. Under Wine a helper starts it
// (tools/windows/native-helper). One source file for each system.
class ServerProcess
{
public:
    ServerProcess();
    ~ServerProcess(); // kills it
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    bool start(const QString& program, const QStringList& options);
    bool isRunning() const;
    void kill(); // it is gone then

private:
    class System;

    std::unique_ptr<System> m_system;
};
