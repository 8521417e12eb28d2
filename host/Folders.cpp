// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/Folders.h"

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
