// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/network/NetworkSystem.h"

class QHostAddress;

namespace Platform {

// An address and a port as the system's calls take them. One of IPv4 that is written as one of
// IPv6, as a socket for both gives it, becomes one of IPv4.
struct SocketAddress
{
    SocketAddress(const QHostAddress& address, quint16 port);

    sockaddr_storage storage = {};
    socklen_t size = 0;
};

} // namespace Platform
