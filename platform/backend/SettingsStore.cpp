// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/SettingsStore.h"

#include "platform/backend/FileWriter.h"
#include "platform/backend/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

namespace Platform {

namespace {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

// QSettings waits without limit while another program holds the lock. So it edits a private copy,
// and the FileWriter replaces the file, with a limited wait.
QByteArray edited(const QString& path, const QByteArray& present,
                  const QMap<QString, QVariant>& changes)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.ini"));
    if (!folder.isValid() || !writeFile(copy, present)) {
        return present;
    }
    QSettings settings(copy, QSettings::IniFormat);
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        settings.setValue(it.key(), it.value());
    }
    settings.sync();
    if (settings.status() == QSettings::FormatError) {
        qCWarning(Log::settings).noquote()
            << "Damaged settings:" << path << "- what could be read of it is kept";
    }
    return settings.status() == QSettings::AccessError ? present : readFile(copy);
}

} // namespace

SettingsStore::SettingsStore(const QString& path) : m_path(path)
{
}

QVariant SettingsStore::value(const QString& key, const QVariant& fallback) const
{
    load();
    return m_values.value(key, fallback);
}

void SettingsStore::setValue(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
    m_written.insert(key, value);
    FileWriter::update(m_path, [path = m_path, changes = m_written](const QByteArray& present) {
        return edited(path, present, changes);
    });
}

void SettingsStore::load() const
{
    if (m_isLoaded) {
        return;
    }
    m_isLoaded = true;
    if (!QFileInfo(m_path).isFile()) {
        return;
    }
    const QSettings settings(m_path, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        if (!key.isEmpty() && !m_values.contains(key)) {
            m_values.insert(key, settings.value(key));
        }
    }
}

} // namespace Platform
