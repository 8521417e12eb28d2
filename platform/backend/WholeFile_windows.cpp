// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/WholeFile.h"

#include "platform/backend/BoundedRead.h"
#include "platform/backend/FileNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Platform {

QString WholeFile::problem(const QString& path)
{
    const QString wrongName = FileNames::problem(path);
    if (!wrongName.isEmpty()) {
        return wrongName;
    }
    const QFileInfo info(path);
    return info.exists() && !info.isFile() ? qtTrId("ID_Engine_File_NotRegular") : QString();
}

QString WholeFile::read(const QString& path, QByteArray* content, qint64 maxBytes)
{
    content->clear();
    const QString wrong = problem(path);
    if (!wrong.isEmpty() || !QFileInfo::exists(path)) {
        return wrong;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return readBounded(file, maxBytes, content);
}

QString WholeFile::write(const QString& path, const QByteArray& content)
{
    const QString wrong = problem(path);
    if (!wrong.isEmpty()) {
        return wrong;
    }
    QSaveFile file(path);
    // commit() doesn't report errors of the last buffered bytes; flush() does.
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush() || !file.commit()) {
        return file.errorString();
    }
    return {};
}

bool WholeFile::makeFolder(const QString& path)
{
    return QDir().mkpath(path);
}

} // namespace Platform
