// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Folders.h"

#include "platform/backend/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

const QLatin1String Home("~/");

} // namespace

QString Folders::data()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString Folders::reports()
{
    return data() + QStringLiteral("/reports");
}

QString Folders::runs()
{
    return data() + QStringLiteral("/runs.jsonl");
}

QString Folders::redactionKey()
{
    return data() + QStringLiteral("/redaction.key");
}

QString Folders::shortened(const QString& path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? Home + path.mid(home.size()) : path;
}

QString Folders::expanded(const QString& path)
{
    return path.startsWith(Home) ? QDir::homePath() + path.mid(Home.size() - 1) : path;
}

void Folders::makeReports()
{
    Platform::WholeFile::makeFolder(reports());
    // Earlier versions created it with rights for everybody.
    QFile::setPermissions(data(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}
