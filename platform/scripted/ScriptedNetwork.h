// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomScripted/ClassroomScriptedExport.h"
#include "platform/backend/NetworkProbe.h"

#include <QObject>
#include <vector>

namespace Platform {

// What the scripted probes measure.
class CLASSROOMSCRIPTED_EXPORT ScriptedNetwork : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ScriptedNetwork)

public:
    using Series = std::vector<NetworkFigures>;

    ScriptedNetwork();
    ~ScriptedNetwork() override;

    // One element per second; the last one repeats. With an empty series a probe reports nothing.
    void setSeries(const Series& series);
    // Probes measure this now, and in every second from now on.
    void setFigures(const NetworkFigures& figures);

    Series series() const { return m_series; }

Q_SIGNALS:
    void seriesChanged();
    void measuredNow();

private:
    Series m_series;
};

} // namespace Platform
