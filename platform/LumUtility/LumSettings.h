// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumUtility/LumUtilityExport.h>
#include <QString>
#include <QVariant>
#include <memory>

namespace Platform {
class SettingsStore;
}

// A named store of settings: an INI file in the engine's settings folder. GUI thread only.
class LUMUTILITY_EXPORT LumSettings
{
public:
    // The store of that name; the empty name means the default store. Stores live until another
    // engine is installed.
    static LumSettings* instance(const QString& store);

    ~LumSettings();
    LumSettings(const LumSettings&) = delete;
    LumSettings& operator=(const LumSettings&) = delete;

    void setSetting(const QString& key, const QVariant& value); // returns at once, written later
    QVariant setting(const QString& key, const QVariant& fallback = {}) const;

private:
    explicit LumSettings(const QString& path);

    std::unique_ptr<Platform::SettingsStore> m_store;
};
