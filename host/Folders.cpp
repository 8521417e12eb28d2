// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Folders.h"

#include "platform/backend/WholeFile.h"

#include <QFile>
#include <QStandardPaths>

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

void Folders::makeReports()
{
    Platform::WholeFile::makeFolder(reports());
    // Earlier versions created it with rights for everybody.
    QFile::setPermissions(data(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}
