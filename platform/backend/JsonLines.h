// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QByteArray>
#include <QString>

namespace Platform {

// The line numbers of the fields of a JSON text, which QJsonDocument doesn't keep. The text must be
// valid. A field is named by its path, such as "cameras[0].name"; the path of the document is
// empty. Reads the text anew for each question: a table of all paths can take a thousand times the
// memory of the text.
class CLASSROOMBACKEND_EXPORT JsonLines
{
public:
    explicit JsonLines(const QByteArray& json) : m_json(json) {}

    int lineOf(const QString& path) const; // the nearest ancestor's if the field is missing
    QString duplicate() const;             // path of the first key that occurs twice, or empty

    static int lineAt(const QByteArray& json, int offset); // from 1

private:
    QByteArray m_json;
};

} // namespace Platform
