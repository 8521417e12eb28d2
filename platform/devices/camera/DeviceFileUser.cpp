// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/DeviceFileUser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Platform {

namespace {

const QLatin1String Processes("/proc");

bool hasOpen(const QDir& process, const QString& path)
{
    QDir files(process.filePath(QStringLiteral("fd")));
    const QStringList numbers =
        files.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::any_of(numbers.begin(), numbers.end(), [&](const QString& number) {
        return QFile::symLinkTarget(files.filePath(number)) == path;
    });
}

// The kernel cuts "comm" at 15 characters. The link is missing for programs of other users.
QString programOf(const QDir& process)
{
    const QString program = QFile::symLinkTarget(process.filePath(QStringLiteral("exe")));
    if (!program.isEmpty()) {
        return QFileInfo(program.section(QStringLiteral(" (deleted)"), 0, 0)).fileName();
    }
    QFile name(process.filePath(QStringLiteral("comm")));
    return name.open(QIODevice::ReadOnly) ? QString::fromUtf8(name.readLine()).trimmed()
                                          : QString();
}

} // namespace

QString DeviceFileUser::nameOf(const QString& path, const QStringList& exceptions)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    if (target.isEmpty()) {
        return {};
    }
    const QString self = QString::number(QCoreApplication::applicationPid());
    const QStringList numbers =
        QDir(Processes).entryList(QStringList(QStringLiteral("[0-9]*")), QDir::Dirs);
    for (const QString& number : numbers) {
        const QDir process(Processes + QLatin1Char('/') + number);
        if (number == self || !hasOpen(process, target)) {
            continue;
        }
        const QString program = programOf(process);
        if (!exceptions.contains(program)) {
            return program;
        }
    }
    return {};
}

} // namespace Platform
