// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace Platform {

// An INI file of settings. Writing returns at once: the file is rewritten whole by the FileWriter,
// with the other programs' keys kept. GUI thread only.
class CLASSROOMBACKEND_EXPORT SettingsStore
{
public:
    explicit SettingsStore(const QString& path);

    QString path() const { return m_path; }
    // The value set last here, otherwise the file's, otherwise the fallback. Reads the file at the
    // first call (the only wait for a disk).
    QVariant value(const QString& key, const QVariant& fallback = {}) const;
    void setValue(const QString& key, const QVariant& value);

private:
    void load() const;

    QString m_path;
    mutable bool m_isLoaded = false;
    mutable QMap<QString, QVariant> m_values;
    QMap<QString, QVariant> m_written;
};

} // namespace Platform
