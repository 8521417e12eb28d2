// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/NetworkSystem.h"

#include <QHostAddress>
#include <QNetworkInterface>

#include <algorithm>

namespace {

bool isConnected()
{
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
    return std::any_of(addresses.begin(), addresses.end(), [](const QHostAddress& address) {
        return !address.isLoopback() && !address.isLinkLocal();
    });
}

} // namespace

// Never ended: the system does so with the process.
void Platform::NetworkSystem::begin()
{
    WSADATA data = {};
    static const int outcome = WSAStartup(MAKEWORD(2, 2), &data);
    Q_UNUSED(outcome)
}

// Windows says the same of every name while there is no network.
bool Platform::NetworkSystem::isUnknownName(int failure)
{
    return (failure == WSAHOST_NOT_FOUND || failure == WSANO_DATA) && isConnected();
}

QString Platform::NetworkSystem::textOf(int failure)
{
    return qt_error_string(failure);
}
