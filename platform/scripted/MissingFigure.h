// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace Platform {

// In place of a figure that only a real device has.
inline QJsonObject missingFigure()
{
    return {{QStringLiteral("notMeasured"), QStringLiteral("scripted")}};
}

} // namespace Platform
