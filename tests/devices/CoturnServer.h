// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/ServerProcess.h"

namespace Platform {
struct StunServer;
}

// A real STUN server on a free port of a loopback address.
class CoturnServer
{
public:
    explicit CoturnServer(const QString& address = QStringLiteral("127.0.0.1"));

    bool start(); // true once it answers; always on the same port
    void kill();
    Platform::StunServer server() const;

private:
    const QString m_address;
    const quint16 m_port;
    ServerProcess m_process;
};
