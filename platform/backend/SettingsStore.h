// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QMap>
#include <QString>
#include <QVariant>
#include <memory>

namespace Platform {

// An INI file of settings. setValue() returns at once; the FileWriter rewrites the file later and
// keeps the keys of other programs. GUI thread only.
class CLASSROOMBACKEND_EXPORT SettingsStore
{
public:
    explicit SettingsStore(const QString& path);

    QString path() const { return m_path; }
    // The value that was set last, else the file's, else the fallback. The first call reads the
    // file: it alone waits for the disk.
    QVariant value(const QString& key, const QVariant& fallback = {}) const;
    void setValue(const QString& key, const QVariant& value);

private:
    struct Changes;

    void load() const;

    QString m_path;
    mutable bool m_isLoaded = false;
    mutable QMap<QString, QVariant> m_values;
    std::shared_ptr<Changes> m_changes; // shared with the thread that writes
};

} // namespace Platform
