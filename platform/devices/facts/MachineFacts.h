// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Platform {

// What Qt alone tells of the machine. Builds wherever Qt does. Thread-safe; availableBytes() waits
// for the disk.
namespace MachineFacts {

QStringList operatingSystem(); // name with version, then architecture
// The model as the kernel names it, otherwise the architecture.
QString processorName(const QString& cpuInfoPath = QStringLiteral("/proc/cpuinfo"));
// What this user may still write on the folder's volume; the folder need not exist yet. -1 where it
// can't be read.
qint64 availableBytes(const QString& folder);
// An address of this machine that others may reach, IPv4 first, otherwise the loopback address.
QString localAddress();

} // namespace MachineFacts
} // namespace Platform
