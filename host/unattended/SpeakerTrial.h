// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/unattended/Trial.h"
#include "platform/backend/SpeakerBackend.h"

#include <QElapsedTimer>
#include <memory>

namespace Platform {
class Engine;
}

// State, volume and mute of one speaker. Nothing is played.
class SpeakerTrial final : public Trial, private Platform::SpeakerBackend::Listener
{
public:
    static constexpr int LongestMs = 2000;
    static constexpr int SettleMs = 100;

    SpeakerTrial(Platform::Engine& engine, Platform::DeviceInfo device, Figures figures);
    ~SpeakerTrial() override;

    CheckKind kind() const override { return CheckKind::Speaker; }
    QString device() const override { return m_device.name; }
    void start() override;
    bool isOver() override;
    QJsonObject finish() override;

private:
    void speakerListChanged() override {}
    void currentSpeakerChanged(const QString&) override {}
    void speakerVolumeChanged(int) override {}
    void speakerWorkStateChanged(bool) override {}

    Platform::Engine& m_engine;
    const Platform::DeviceInfo m_device;
    Figures m_figures;
    std::unique_ptr<Platform::SpeakerBackend> m_speaker;
    QElapsedTimer m_clock;
};
