// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/scripted/Scenario.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace Platform {

// Plays the events of a scenario. Their times count from the construction of this object.
class Timeline final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Timeline)

public:
    Timeline(std::vector<Scenario::Event> events, ScriptedEngine& engine);
    ~Timeline() override;

private:
    void playDue();

    std::vector<Scenario::Event> m_events;
    ScriptedEngine& m_engine;
    std::size_t m_next = 0;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

} // namespace Platform
