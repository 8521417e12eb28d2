// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/commands/CheckRun.h"

#include "agent/EnvCheckAgent.h"

#include <CoreEngine/CoreEngine.h>

void CheckRun::exec()
{
    m_wasPutOut = false;
    QObject watcher;
    auto* core = LumEngine::CoreEngine::instance();
    const auto putOut = [this] { m_wasPutOut = true; };
    QObject::connect(core, &LumEngine::CoreEngine::signalBasicBreakdown, &watcher, putOut);
    QObject::connect(core, &LumEngine::CoreEngine::signalKickout, &watcher, putOut);
    EnvCheckAgent::instance()->showEnvCheck(nullptr);
    EnvCheckAgent::release();
}
