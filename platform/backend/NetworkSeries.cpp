// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/NetworkSeries.h"

#include "platform/backend/NetworkProbe.h"

namespace Platform {

QJsonObject NetworkSeries::add(const NetworkFigures& figures)
{
    if (figures.problem == NetworkProblem::NoServer) {
        return toJson(figures);
    }
    if (figures.delayMs >= 0) {
        m_delays.add(figures.delayMs);
        m_jitters.add(figures.jitterMs);
    } else {
        m_delays.addGap();
        m_jitters.addGap();
    }
    m_losses.add(figures.lossPercent);
    QJsonObject result = toJson(figures);
    result.insert(QLatin1String(SeriesKeys::Delay), m_delays.toJson());
    result.insert(QLatin1String(SeriesKeys::Jitter), m_jitters.toJson());
    result.insert(QLatin1String(SeriesKeys::Loss), m_losses.toJson());
    return result;
}

} // namespace Platform
