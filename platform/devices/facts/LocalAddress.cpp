// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/facts/LocalAddress.h"

#include <QHostAddress>
#include <QNetworkInterface>

namespace Platform {

namespace {

bool isReachable(const QHostAddress& address)
{
    return !address.isNull() && !address.isLoopback() && !address.isLinkLocal();
}

} // namespace

QString LocalAddress::find()
{
    return bestOf(QNetworkInterface::allAddresses());
}

QString LocalAddress::bestOf(const QList<QHostAddress>& addresses)
{
    QString version6;
    for (const QHostAddress& address : addresses) {
        if (!isReachable(address)) {
            continue;
        }
        if (address.protocol() == QAbstractSocket::IPv4Protocol) {
            return address.toString();
        }
        if (version6.isEmpty()) {
            version6 = address.toString();
        }
    }
    return version6.isEmpty() ? QHostAddress(QHostAddress::LocalHost).toString() : version6;
}

} // namespace Platform
