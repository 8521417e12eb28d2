// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/absent/AbsentSpeaker.h"

#include "platform/backend/ReportSink.h"
#include "platform/backend/ResultKeys.h"
#include "platform/backend/SoundServerState.h"

#include <QJsonObject>

namespace Platform {

AbsentSpeaker::AbsentSpeaker(ReportSink& report)
{
    const QString word = toString(SoundServerState::NotBuilt);
    report.recordMeasurement(QStringLiteral("speaker"), {{ResultKeys::State, word}});
}

} // namespace Platform
