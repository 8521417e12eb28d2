// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/CameraCause.h"

namespace Platform {

QString toString(CameraCause::Kind kind)
{
    using Kind = CameraCause::Kind;
    switch (kind) {
    case Kind::None:
        break;
    case Kind::Starting:
        return QStringLiteral("starting");
    case Kind::Absent:
        return QStringLiteral("absent");
    case Kind::Busy:
        return QStringLiteral("busy");
    case Kind::Denied:
        return QStringLiteral("denied");
    case Kind::Hung:
        return QStringLiteral("hung");
    case Kind::Stalled:
        return QStringLiteral("stalled");
    case Kind::Black:
        return QStringLiteral("black");
    case Kind::Unplugged:
        return QStringLiteral("unplugged");
    case Kind::ServerLost:
        return QStringLiteral("serverLost");
    case Kind::Failed:
        return QStringLiteral("failed");
    case Kind::Unreadable:
        return QStringLiteral("unreadable");
    case Kind::NotBuilt:
        return QStringLiteral("notBuilt");
    }
    return {};
}

} // namespace Platform
