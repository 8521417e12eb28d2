// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/NetworkProbe.h"

namespace Platform {

QString wordOf(NetworkProblem problem)
{
    switch (problem) {
    case NetworkProblem::NoServer:
        return QStringLiteral("noServer");
    case NetworkProblem::NoSuchHost:
        return QStringLiteral("noSuchHost");
    case NetworkProblem::Refused:
        return QStringLiteral("refused");
    case NetworkProblem::NoRoute:
        return QStringLiteral("noRoute");
    case NetworkProblem::None:
        break;
    }
    return {};
}

QJsonObject toJson(const NetworkFigures& figures)
{
    QJsonObject object{{QStringLiteral("lossPercent"), figures.lossPercent},
                       {QStringLiteral("delayMs"), figures.delayMs},
                       {QStringLiteral("jitterMs"), figures.jitterMs},
                       {QStringLiteral("sent"), figures.sent},
                       {QStringLiteral("answered"), figures.answered},
                       {QStringLiteral("delay5Ms"), figures.delay5Ms},
                       {QStringLiteral("delay95Ms"), figures.delay95Ms}};
    if (figures.problem != NetworkProblem::None) {
        object.insert(QStringLiteral("state"), wordOf(figures.problem));
    }
    return object;
}

} // namespace Platform
