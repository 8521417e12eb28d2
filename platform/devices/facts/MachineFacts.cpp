// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/facts/MachineFacts.h"

#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QStorageInfo>
#include <QSysInfo>

namespace Platform {

namespace {

constexpr qint64 MaxCpuInfoLine = 4096;
constexpr int MaxCpuInfoLines = 64; // the first processor's block is shorter

bool isReachable(const QHostAddress& address)
{
    return !address.isNull() && !address.isLoopback() && !address.isLinkLocal();
}

} // namespace

QStringList MachineFacts::operatingSystem()
{
    return {QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()};
}

QString MachineFacts::processorName(const QString& cpuInfoPath)
{
    QFile file(cpuInfoPath);
    if (file.open(QIODevice::ReadOnly)) {
        for (int line = 0; line < MaxCpuInfoLines; ++line) {
            const QString text = QString::fromUtf8(file.readLine(MaxCpuInfoLine));
            if (text.section(QLatin1Char(':'), 0, 0).trimmed() == QLatin1String("model name")) {
                return text.section(QLatin1Char(':'), 1).simplified();
            }
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

qint64 MachineFacts::availableBytes(const QString& folder)
{
    QFileInfo existing(folder);
    while (!existing.exists() && existing.absolutePath() != existing.absoluteFilePath()) {
        existing.setFile(existing.absolutePath());
    }
    const QStorageInfo volume(existing.absoluteFilePath());
    return volume.isValid() ? volume.bytesAvailable() : -1;
}

QString MachineFacts::localAddress()
{
    QString version6;
    const QList<QHostAddress> addresses = QNetworkInterface::allAddresses();
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
