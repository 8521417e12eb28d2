// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"

#include <QStringList>
#include <utility>

namespace TestSupport {

// Keeps what a camera's session says, in order, and counts its frames.
class CameraListener : public Platform::CameraBackend::Listener
{
public:
    void cameraListChanged() override { m_heard.append(QStringLiteral("list")); }
    void currentCameraChanged(const QString& id) override
    {
        m_heard.append(QStringLiteral("current ") + id);
    }
    void cameraWorkStateChanged(const QString& id, bool works) override
    {
        m_heard.append(QStringLiteral("works %1 %2").arg(id).arg(works));
    }
    void cameraCauseChanged() override { ++m_causes; }
    void frameArrived() override { ++m_pictures; }

    QStringList heard() const { return m_heard; }
    QStringList take() { return std::exchange(m_heard, {}); }
    int pictures() const { return m_pictures; }
    int causes() const { return m_causes; }

private:
    QStringList m_heard;
    int m_pictures = 0;
    int m_causes = 0;
};

} // namespace TestSupport
