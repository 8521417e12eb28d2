// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/unattended/Trial.h"
#include "platform/backend/MicrophoneBackend.h"

#include <QElapsedTimer>
#include <memory>

namespace Platform {
class Engine;
}

// Two seconds of one microphone.
class MicrophoneTrial final : public Trial, private Platform::MicrophoneBackend::Listener
{
public:
    static constexpr int MeasureMs = 2200; // two whole seconds, and the first piece
    static constexpr int LongestMs = 5000;
    static constexpr int SettleMs = 500; // a failure may pass by itself

    MicrophoneTrial(Platform::Engine& engine, Platform::DeviceInfo device, Figures figures);
    ~MicrophoneTrial() override;

    CheckKind kind() const override { return CheckKind::Microphone; }
    QString device() const override { return m_device.name; }
    void start() override;
    bool isOver() override;
    QJsonObject finish() override;

private:
    void microphoneListChanged() override {}
    void currentMicrophoneChanged(const QString&) override {}
    void levelMeasured(double level) override;
    void microphoneVolumeChanged(int) override {}
    void microphoneInfoChanged() override {}
    void microphoneWorkStateChanged(const QString&, bool) override {}
    void systemVolumeChanged(float) override {}

    bool isRefused() const;

    Platform::Engine& m_engine;
    const Platform::DeviceInfo m_device;
    Figures m_figures;
    std::unique_ptr<Platform::MicrophoneBackend> m_microphone;
    QElapsedTimer m_clock;
    QElapsedTimer m_sinceOpened;
    QElapsedTimer m_sinceLevel; // the first one
};
