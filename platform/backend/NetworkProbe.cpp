// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/NetworkProbe.h"

namespace Platform {

QJsonObject toJson(const NetworkFigures& figures)
{
    return {{QStringLiteral("lossPercent"), figures.lossPercent},
            {QStringLiteral("delayMs"), figures.delayMs},
            {QStringLiteral("jitterMs"), figures.jitterMs},
            {QStringLiteral("sent"), figures.sent},
            {QStringLiteral("answered"), figures.answered},
            {QStringLiteral("delay5Ms"), figures.delay5Ms},
            {QStringLiteral("delay95Ms"), figures.delay95Ms}};
}

} // namespace Platform
