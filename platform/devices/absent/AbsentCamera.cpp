// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/absent/AbsentCamera.h"

#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultKeys.h"

#include <QJsonObject>

namespace Platform {

AbsentCamera::AbsentCamera(ReportSink& report) : m_report(report)
{
}

CameraCause AbsentCamera::cause() const
{
    return {m_isStarted ? CameraCause::Kind::NotBuilt : CameraCause::Kind::None, {}};
}

void AbsentCamera::start()
{
    m_isStarted = true;
    const QString word = toString(CameraCause::Kind::NotBuilt);
    m_report.recordMeasurement(QStringLiteral("camera"), {{ResultKeys::State, word}});
}

void AbsentCamera::stop()
{
    m_isStarted = false;
}

} // namespace Platform
