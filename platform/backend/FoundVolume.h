// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace Platform {

// For the report: the volume of the current device as it was found, and whether the user changed
// it.
class FoundVolume
{
public:
    void reset(int percent, bool isMuted) // another device became the current one
    {
        m_percent = percent;
        m_isMuted = isMuted;
        m_wasMovedByUser = false;
    }

    void noteMove() { m_wasMovedByUser = true; }

    void addTo(QJsonObject& figures, int percentNow, bool isMutedNow) const
    {
        figures.insert(QStringLiteral("volumeBefore"), m_percent);
        figures.insert(QStringLiteral("volumeAfter"), percentNow);
        figures.insert(QStringLiteral("mutedBefore"), m_isMuted);
        figures.insert(QStringLiteral("mutedAfter"), isMutedNow);
        figures.insert(QStringLiteral("movedByUser"), m_wasMovedByUser);
    }

private:
    int m_percent = 0;
    bool m_isMuted = false;
    bool m_wasMovedByUser = false;
};

} // namespace Platform
