// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/absent/AbsentMicrophone.h"

#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultKeys.h"
#include "platform/backend/SoundServerState.h"

#include <QJsonObject>

namespace Platform {

void AbsentMicrophone::open()
{
    const QString word = toString(SoundServerState::NotBuilt);
    m_report.recordMeasurement(QStringLiteral("microphone"), {{ResultKeys::State, word}});
}

} // namespace Platform
