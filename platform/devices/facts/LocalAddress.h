// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QHostAddress;

namespace Platform {
namespace LocalAddress {

QString find(); // the best one of this machine

// One that others may reach, IPv4 first, otherwise the loopback address.
QString bestOf(const QList<QHostAddress>& addresses);

} // namespace LocalAddress
} // namespace Platform
