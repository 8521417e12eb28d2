// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/FloodGate.h"

#include <QDir>
#include <QtEndian>

#include <linux/tcp.h> // that of the C library has no bytes
#include <netinet/in.h>
#include <sys/socket.h>

namespace Platform {

namespace {

quint16 remotePort(int descriptor)
{
    sockaddr_storage address = {};
    socklen_t size = sizeof address;
    if (::getpeername(descriptor, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
        return 0;
    }
    // Both families have the port in the same place.
    const bool isInternet = address.ss_family == AF_INET || address.ss_family == AF_INET6;
    return isInternet ? qFromBigEndian(reinterpret_cast<const sockaddr_in*>(&address)->sin_port)
                      : quint16(0);
}

// Datagram sockets have none.
qint64 receivedBy(int descriptor)
{
    tcp_info info = {};
    socklen_t size = sizeof info;
    const bool isKnown = ::getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) == 0;
    return isKnown ? qint64(info.tcpi_bytes_received) : 0;
}

} // namespace

// Asking a descriptor that isn't ours, or is closed meanwhile, does it no harm.
bool FloodGate::cutAbove(qint64 maxBytes, quint16 port)
{
    bool isCut = false;
    const QStringList descriptors =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System);
    for (const QString& name : descriptors) {
        bool isNumber = false;
        const int descriptor = name.toInt(&isNumber);
        if (isNumber && remotePort(descriptor) == port && receivedBy(descriptor) > maxBytes) {
            // Unlike shutdown(), this also drops what the kernel holds.
            sockaddr nowhere = {};
            nowhere.sa_family = AF_UNSPEC;
            isCut = ::connect(descriptor, &nowhere, sizeof nowhere) == 0 || isCut;
        }
    }
    return isCut;
}

} // namespace Platform
