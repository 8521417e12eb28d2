// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include <LumUtility/LumSettings.h>

#include "platform/backend/Engine.h"
#include "platform/backend/EngineRegistry.h"
#include "platform/backend/SettingsStore.h"

#include <map>

namespace {

// Store names are foreign text: escape characters that have a meaning in a path.
QString fileName(const QString& store)
{
    if (store.isEmpty()) {
        return QStringLiteral("settings.ini");
    }
    return QStringLiteral("settings-%1.ini").arg(QString::fromLatin1(store.toUtf8().toHex()));
}

} // namespace

LumSettings* LumSettings::instance(const QString& store)
{
    static std::map<QString, std::unique_ptr<LumSettings>> stores;
    static int generation = 0;
    if (generation != Platform::EngineRegistry::generation()) {
        generation = Platform::EngineRegistry::generation();
        stores.clear();
    }
    std::unique_ptr<LumSettings>& found = stores[store];
    if (!found) {
        const QString folder = Platform::EngineRegistry::engine().settingsFolder();
        found.reset(new LumSettings(folder + QLatin1Char('/') + fileName(store)));
    }
    return found.get();
}

LumSettings::LumSettings(const QString& path)
    : m_store(std::make_unique<Platform::SettingsStore>(path))
{
}

LumSettings::~LumSettings() = default;

void LumSettings::setSetting(const QString& key, const QVariant& value)
{
    m_store->setValue(key, value);
}

QVariant LumSettings::setting(const QString& key, const QVariant& fallback) const
{
    return m_store->value(key, fallback);
}
