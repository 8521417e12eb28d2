// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/CameraBackend.h"

#include <QStringList>

namespace TestSupport {

// Keeps what a camera back end tells its listener.
class CameraWatcher final : public Platform::CameraBackend::Listener
{
public:
    void cameraListChanged() override { log << QStringLiteral("list"); }
    void currentCameraChanged(const QString& id) override
    {
        log << QStringLiteral("current ") + id;
    }
    void cameraWorkStateChanged(const QString&, bool works) override
    {
        doesWork = works;
        log << (works ? QStringLiteral("works") : QStringLiteral("fails"));
    }
    void cameraCauseChanged() override { ++causes; }
    void frameArrived() override { ++frames; }

    QStringList log;
    int frames = 0;
    int causes = 0;
    bool doesWork = false;
};

} // namespace TestSupport
