// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedNetwork.h"

namespace Platform {

ScriptedNetwork::ScriptedNetwork() = default;

ScriptedNetwork::~ScriptedNetwork() = default;

void ScriptedNetwork::setSeries(const Series& series)
{
    m_series = series;
    Q_EMIT seriesChanged();
}

void ScriptedNetwork::setFigures(const NetworkFigures& figures)
{
    setSeries({figures});
    Q_EMIT measuredNow();
}

} // namespace Platform
