// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/devices/ServerProcess.h"

#include <QStringList>

// A real name server on a free port of the loopback address. Nothing is passed on to others.
class NameServer
{
public:
    // Options of dnsmasq, such as "--srv-host=_stun._udp.example.test,localhost,3478,0,0".
    bool start(const QStringList& records); // true once it answers

    QString address() const; // "ADDRESS:PORT"

private:
    quint16 m_port = 0;
    ServerProcess m_process;
};
