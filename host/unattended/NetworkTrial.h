// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/unattended/Trial.h"
#include "platform/backend/NetworkProbe.h"

#include <QElapsedTimer>
#include <memory>

namespace Platform {
class Engine;
}

// Ten seconds of probes.
class NetworkTrial final : public Trial, private Platform::NetworkProbe::Listener
{
public:
    static constexpr int Seconds = 10; // one update of the figures each
    static constexpr int LongestMs = 12000;

    NetworkTrial(Platform::Engine& engine, Figures figures);
    ~NetworkTrial() override;

    CheckKind kind() const override { return CheckKind::Network; }
    void start() override;
    bool isOver() override;
    QJsonObject finish() override;

private:
    void networkFiguresChanged() override { ++m_updates; }

    Platform::Engine& m_engine;
    Figures m_figures;
    std::unique_ptr<Platform::NetworkProbe> m_probe;
    QElapsedTimer m_clock;
    int m_updates = 0;
};
