// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/unattended/Trial.h"
#include "platform/backend/CameraBackend.h"

#include <QElapsedTimer>
#include <QImage>
#include <memory>

namespace Platform {
class Engine;
}

// Opens one camera until its picture moves, or it is clear that it won't.
class CameraTrial final : public Trial, private Platform::CameraBackend::Listener
{
public:
    static constexpr int LongestMs = 8000;
    static constexpr int MovingMs = 1000; // from the first frame: enough to count the rate
    static constexpr int FrozenMs = 3000; // without a change from the first frame on
    static constexpr int SettleMs = 500;  // a reason for no picture may pass by itself

    CameraTrial(Platform::Engine& engine, Platform::DeviceInfo device, Figures figures);
    ~CameraTrial() override;

    CheckKind kind() const override { return CheckKind::Camera; }
    QString device() const override { return m_device.name; }
    void start() override;
    bool isOver() override;
    QJsonObject finish() override;

private:
    void cameraListChanged() override {}
    void currentCameraChanged(const QString&) override {}
    void cameraWorkStateChanged(const QString&, bool) override {}
    void cameraCauseChanged() override {}
    void frameArrived() override;

    bool isExplained();

    Platform::Engine& m_engine;
    const Platform::DeviceInfo m_device;
    Figures m_figures;
    std::unique_ptr<Platform::CameraBackend> m_camera;
    QElapsedTimer m_clock;
    QElapsedTimer m_sinceFrame; // the first one
    QElapsedTimer m_sinceCause;
    Platform::CameraCause m_cause;
    QImage m_frame;
    bool m_hasMoved = false;
};
