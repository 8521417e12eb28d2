// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/camera/InfraredFilter.h"

#include "platform/devices/camera/CameraNode.h"

#include <QRegularExpression>

namespace Platform {

bool InfraredFilter::isInfrared(const CameraNode& node)
{
    static const QRegularExpression name(QStringLiteral("\\b(IR|[Ii]nfrared)\\b"));
    const bool isGray = node.hasFormats && !node.hasColor;
    return isGray || name.match(node.description).hasMatch();
}

} // namespace Platform
