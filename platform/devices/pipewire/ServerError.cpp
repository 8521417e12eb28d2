// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/pipewire/ServerError.h"

#include <QRegularExpression>
#include <cerrno>

namespace Platform {

namespace {

// As in "error set output format: -16 (Device or resource busy)".
int numberIn(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("(?:^|\\s)-(\\d{1,4})\\b"));
    return pattern.match(text).captured(1).toInt();
}

} // namespace

ServerError::ServerError(const char* message, int result)
    : number(result < 0 ? -result : 0), text(QString::fromUtf8(message))
{
    if (number == 0) {
        number = numberIn(text);
    }
}

DeviceState ServerError::state() const
{
    switch (number) {
    case EBUSY:
        return DeviceState::Busy;
    case EACCES:
    case EPERM:
        return DeviceState::Denied;
    default:
        return DeviceState::Failed;
    }
}

} // namespace Platform
