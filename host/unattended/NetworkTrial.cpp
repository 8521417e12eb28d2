// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/unattended/NetworkTrial.h"

#include "platform/backend/Engine.h"

#include <utility>

NetworkTrial::NetworkTrial(Platform::Engine& engine, Figures figures)
    : m_engine(engine), m_figures(std::move(figures))
{
}

NetworkTrial::~NetworkTrial() = default;

void NetworkTrial::start()
{
    m_clock.start();
    m_probe = m_engine.createNetworkProbe(*this);
}

bool NetworkTrial::isOver()
{
    return m_updates >= Seconds || m_clock.elapsed() >= LongestMs;
}

QJsonObject NetworkTrial::finish()
{
    m_probe.reset();
    return m_updates > 0 ? m_figures(kind()) : QJsonObject();
}
