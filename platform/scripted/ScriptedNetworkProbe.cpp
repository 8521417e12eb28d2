// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedNetworkProbe.h"

#include "platform/backend/Percentile.h"
#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedNetwork.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr int FirstVerdictMs = 200;
constexpr int PeriodMs = 1000;
constexpr std::size_t WindowSeconds = 5;

} // namespace

ScriptedNetworkProbe::ScriptedNetworkProbe(ScriptedNetwork& network, CallLog& log,
                                           ResultDocument& document, Listener& listener)
    : m_network(network),
      m_document(document),
      m_listener(listener),
      m_session(log, QStringLiteral("network"))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ScriptedNetworkProbe::measure);
    connect(&m_network, &ScriptedNetwork::seriesChanged, this, &ScriptedNetworkProbe::restart);
    connect(&m_network, &ScriptedNetwork::measuredNow, this, &ScriptedNetworkProbe::measure,
            Qt::QueuedConnection);
    restart();
}

ScriptedNetworkProbe::~ScriptedNetworkProbe() = default;

NetworkFigures ScriptedNetworkProbe::figures() const
{
    m_session.query("figures");
    return m_figures;
}

void ScriptedNetworkProbe::restart()
{
    m_next = 0;
    if (m_network.series().empty()) {
        m_timer.stop();
    } else {
        m_timer.start(FirstVerdictMs);
    }
}

// The delays within the time window of a real probe.
std::vector<int> ScriptedNetworkProbe::sortedDelays() const
{
    const ScriptedNetwork::Series series = m_network.series();
    std::vector<int> delays;
    for (std::size_t i = m_next - std::min(m_next, WindowSeconds); i < m_next; ++i) {
        const NetworkFigures& figures = series.at(std::min(i, series.size() - 1));
        if (figures.delayMs >= 0) {
            delays.push_back(figures.delayMs);
        }
    }
    std::sort(delays.begin(), delays.end());
    return delays;
}

void ScriptedNetworkProbe::measure()
{
    const ScriptedNetwork::Series series = m_network.series();
    if (series.empty()) {
        return;
    }
    m_figures = series.at(std::min(m_next, series.size() - 1));
    ++m_next;
    const std::vector<int> delays = sortedDelays();
    if (!delays.empty()) {
        m_figures.delay5Ms = percentile(delays, 5);
        m_figures.delay95Ms = percentile(delays, 95);
    }
    m_timer.start(PeriodMs);
    m_document.recordMeasurement(QStringLiteral("network"), m_series.add(m_figures));
    m_listener.networkFiguresChanged();
}

} // namespace Platform
