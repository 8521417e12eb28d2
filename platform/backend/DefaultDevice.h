// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace Platform {

// For the report: the system's default device of one kind, when first seen and when last seen.
class DefaultDevice
{
public:
    void take(const QString& name) // null if there is none; that changes nothing
    {
        if (name.isNull()) {
            return;
        }
        if (m_found.isNull()) {
            m_found = name;
        }
        m_left = name;
    }

    void addTo(QJsonObject& figures) const
    {
        if (!m_found.isNull()) {
            figures.insert(QStringLiteral("defaultBefore"), m_found);
            figures.insert(QStringLiteral("defaultAfter"), m_left);
        }
    }

private:
    QString m_found;
    QString m_left;
};

} // namespace Platform
