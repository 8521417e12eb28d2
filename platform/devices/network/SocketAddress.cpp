// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/SocketAddress.h"

#include <QHostAddress>

#include <cstring>

namespace Platform {

SocketAddress::SocketAddress(const QHostAddress& address, quint16 port)
{
    bool isIPv4 = false;
    const quint32 plainAddress = address.toIPv4Address(&isIPv4);
    if (isIPv4) {
        sockaddr_in plain = {};
        plain.sin_family = AF_INET;
        plain.sin_port = htons(port);
        plain.sin_addr.s_addr = htonl(plainAddress);
        std::memcpy(&storage, &plain, sizeof(plain));
        size = sizeof(plain);
        return;
    }
    sockaddr_in6 plain = {};
    plain.sin6_family = AF_INET6;
    plain.sin6_port = htons(port);
    plain.sin6_scope_id = address.scopeId().toUInt();
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    std::memcpy(&plain.sin6_addr, &bytes, sizeof(bytes));
    std::memcpy(&storage, &plain, sizeof(plain));
    size = sizeof(plain);
}

} // namespace Platform
