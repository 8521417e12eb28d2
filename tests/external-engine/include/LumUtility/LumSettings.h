// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QVariant>

class LumSettings
{
public:
    static LumSettings* instance(const QString& store);
    void setSetting(const QString& key, const QVariant& value);
    QVariant setting(const QString& key, const QVariant& fallback = {}) const
    {
        return m_values.value(key, fallback);
    }

private:
    QMap<QString, QVariant> m_values;
};
