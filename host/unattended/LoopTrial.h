// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/unattended/Trial.h"
#include "platform/backend/DeviceInfo.h"

#include <QElapsedTimer>
#include <memory>

namespace Platform {
class AcousticLoop;
class Engine;
} // namespace Platform

// Whether the chosen microphone hears a sweep on the chosen speaker. It makes noise, so it is only
// tried if the user asks for it, and after the microphones were measured.
class LoopTrial final : public Trial
{
public:
    static constexpr int LongestMs = 7000; // an engine ends before that

    // A device without an id: there is none.
    LoopTrial(Platform::Engine& engine, Platform::DeviceInfo speaker,
              Platform::DeviceInfo microphone);
    ~LoopTrial() override;

    CheckKind kind() const override { return CheckKind::Loop; }
    void start() override;
    bool isOver() override;
    QJsonObject finish() override;

private:
    Platform::Engine& m_engine;
    const Platform::DeviceInfo m_speaker;
    const Platform::DeviceInfo m_microphone;
    std::unique_ptr<Platform::AcousticLoop> m_loop; // null if the engine can't
    QElapsedTimer m_clock;
};
