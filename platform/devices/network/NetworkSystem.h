// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#ifdef Q_OS_WIN
#include <winsock2.h>
// Must follow winsock2.h.
#include <ws2tcpip.h>
#else
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace Platform {

// What differs between the systems' calls to the network, which have the same names. One source
// file for each system.
namespace NetworkSystem {

// Before the first call to the system that doesn't go through Qt. Any thread.
void begin();
// Of a failed getaddrinfo().
bool isUnknownName(int failure);
QString textOf(int failure);

} // namespace NetworkSystem
} // namespace Platform
