// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/devices/pulse/PulseDevices.h"

#include <QJsonObject>
#include <QString>

namespace Platform {

// The server's default device of one kind as it was found and as it is left, for the report.
class DefaultDevice
{
public:
    // A server without one, or one that is gone, says nothing.
    void take(const PulseSide& side)
    {
        const PulseDevice* device = side.find(side.defaultId);
        if (device && m_found.isNull()) {
            m_found = device->name;
        }
        if (device) {
            m_left = device->name;
        }
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
