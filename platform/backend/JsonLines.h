// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace Platform {

// The line numbers of the fields of a JSON text, which QJsonDocument doesn't keep. The text must be
// valid. A field is named by its path, such as "cameras[0].name"; the path of the document is
// empty.
class CLASSROOMBACKEND_EXPORT JsonLines
{
public:
    explicit JsonLines(const QByteArray& json);

    int lineOf(const QString& path) const; // the nearest ancestor's if the field is missing
    QString duplicate() const
    {
        return m_duplicate;
    } // path of the first key that occurs twice, or empty

    static int lineAt(const QByteArray& json, int offset); // from 1

private:
    void scanValue(const QString& path);
    void scanObject(const QString& path);
    void scanArray(const QString& path);
    void skipBlanks();
    QString takeString();
    char current() const;

    QByteArray m_json;
    int m_position = 0;
    int m_line = 1;
    QHash<QString, int> m_lines;
    QString m_duplicate;
};

} // namespace Platform
