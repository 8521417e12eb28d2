// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/backend/NetworkProbe.h"
#include "platform/backend/NetworkSeries.h"
#include "platform/scripted/LoggedSession.h"

#include <QObject>
#include <QTimer>
#include <vector>

namespace Platform {

class ResultDocument;
class ScriptedNetwork;

// One running measurement along the scripted series.
class ScriptedNetworkProbe final : public QObject, public NetworkProbe
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedNetworkProbe)

public:
    ScriptedNetworkProbe(ScriptedNetwork& network, CallLog& log, ResultDocument& document,
                         Listener& listener);
    ~ScriptedNetworkProbe() override;

    NetworkFigures figures() const override;

private:
    void restart();
    void measure();
    std::vector<int> sortedDelays() const;

    ScriptedNetwork& m_network;
    ResultDocument& m_document; // receives the last figures
    Listener& m_listener;
    LoggedSession m_session;
    QTimer m_timer;
    std::size_t m_next = 0;
    NetworkFigures m_figures;
    NetworkSeries m_series;
};

} // namespace Platform
