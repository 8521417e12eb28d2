// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/TimeSeries.h"

namespace Platform {

struct NetworkFigures;

// Delay, jitter and loss of a network, over the time of one probe.
class CLASSROOMBACKEND_EXPORT NetworkSeries
{
public:
    // Once a second. Returns the figures for the report, with the series so far.
    // Without a server nothing of a network is measured, so there is none.
    QJsonObject add(const NetworkFigures& figures);

private:
    TimeSeries m_delays;
    TimeSeries m_jitters;
    TimeSeries m_losses;
};

} // namespace Platform
