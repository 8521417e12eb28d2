// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/SettingsStore.h"

#include "platform/backend/FileWriter.h"
#include "platform/backend/Log.h"
#include "platform/backend/ScratchFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <algorithm>
#include <mutex>
#include <utility>

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
    // Closing doesn't report errors of the last buffered bytes; flush() does.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

// QSettings doesn't notice if the disk is full. It keeps what it wrote to a file of this name in
// mind, and wouldn't read it again.
bool isWhole(const QString& file, const QSettings& settings)
{
    const QSettings written(file, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString& key) {
        return key.isEmpty() || (written.contains(key) &&
                                 written.value(key).toString() == settings.value(key).toString());
    });
}

// QSettings waits without limit while another program holds the lock. So it edits a private copy,
// and the FileWriter replaces the file, with a limited wait. Nothing if the copy isn't whole.
std::optional<QByteArray> edited(const QString& path, const QByteArray& present,
                                 const QMap<QString, QVariant>& changes)
{
    // Beside the file: if this disk is full, nothing can be written anyway.
    const ScratchFolder folder(QFileInfo(path).absolutePath());
    const QString copy = folder.filePath(QStringLiteral("copy.ini"));
    if (!folder.isValid() || !writeFile(copy, present)) {
        return std::nullopt;
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
    const QString written = folder.filePath(QStringLiteral("written.ini"));
    if (settings.status() == QSettings::AccessError || !QFile::rename(copy, written) ||
        !isWhole(written, settings)) {
        return std::nullopt;
    }
    return readFile(written);
}

} // namespace

// All values that were set, also those that are written: the next write makes up for a failed one.
struct SettingsStore::Changes
{
    std::mutex mutex;
    QMap<QString, QVariant> values;
    bool areNew = false; // something was set since the last write began
};

SettingsStore::SettingsStore(const QString& path)
    : m_path(path), m_changes(std::make_shared<Changes>())
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
    {
        const std::scoped_lock lock(m_changes->mutex);
        m_changes->values.insert(key, value);
        m_changes->areNew = true;
    }
    // If several wait for the disk, the first one writes the values of all.
    FileWriter::update(m_path, [path = m_path, changes = m_changes](const QByteArray& present) {
        QMap<QString, QVariant> values;
        {
            const std::scoped_lock lock(changes->mutex);
            if (!std::exchange(changes->areNew, false)) {
                return std::optional(present);
            }
            values = changes->values;
        }
        return edited(path, present, values);
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
