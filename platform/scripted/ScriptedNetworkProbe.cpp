// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/scripted/ScriptedNetworkProbe.h"

#include "platform/backend/ResultDocument.h"
#include "platform/scripted/ScriptedNetwork.h"

#include <algorithm>

namespace Platform {

namespace {

constexpr int FirstVerdictMs = 200;
constexpr int PeriodMs = 1000;

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

ScriptedNetworkProbe::~ScriptedNetworkProbe()
{
    if (m_next > 0) {
        m_document.recordMeasurement(QStringLiteral("network"),
                                     {{QStringLiteral("lossPercent"), m_figures.lossPercent},
                                      {QStringLiteral("delayMs"), m_figures.delayMs},
                                      {QStringLiteral("jitterMs"), m_figures.jitterMs},
                                      {QStringLiteral("sent"), m_figures.sent},
                                      {QStringLiteral("answered"), m_figures.answered}});
    }
}

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

void ScriptedNetworkProbe::measure()
{
    const ScriptedNetwork::Series series = m_network.series();
    if (series.empty()) {
        return;
    }
    m_figures = series.at(std::min(m_next, series.size() - 1));
    ++m_next;
    m_timer.start(PeriodMs);
    m_listener.networkFiguresChanged();
}

} // namespace Platform
