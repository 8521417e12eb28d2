// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/MachineFacts.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSysInfo>
#include <filesystem>
#include <system_error>

namespace Platform {

namespace {

constexpr qint64 MaxCpuInfoLine = 4096;
constexpr int MaxCpuInfoLines = 64; // the first processor's block is shorter

} // namespace

#ifdef Q_OS_WIN
// Without the build number in brackets: the network page has no room for it.
QStringList MachineFacts::operatingSystem()
{
    return {QSysInfo::prettyProductName().section(QStringLiteral(" ("), 0, 0),
            QSysInfo::currentCpuArchitecture()};
}

QString MachineFacts::processorName()
{
    const QSettings processor(
        QStringLiteral("HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"),
        QSettings::NativeFormat);
    const QString name = processor.value(QStringLiteral("ProcessorNameString")).toString();
    return name.trimmed().isEmpty() ? QSysInfo::currentCpuArchitecture() : name.simplified();
}
#else
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
#endif

qint64 MachineFacts::availableBytes(const QString& folder)
{
    if (folder.isEmpty()) {
        return -1; // MinGW's library would throw below
    }
    QFileInfo existing(folder);
    while (!existing.exists() && existing.absolutePath() != existing.absoluteFilePath()) {
        existing.setFile(existing.absolutePath());
    }
    // Ask the folder itself: QStorageInfo doesn't work after chroot.
    std::error_code error;
    const std::filesystem::space_info space =
        std::filesystem::space(existing.absoluteFilePath().toStdU16String(), error);
    return error ? -1 : static_cast<qint64>(space.available);
}

} // namespace Platform
