// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomDevices/ClassroomDevicesExport.h"

#include <QString>
#include <optional>

namespace Platform {

// Where a STUN server is found.
struct CLASSROOMDEVICES_EXPORT StunServer
{
    QString host; // a name or an address, that of IPv6 without brackets
    quint16 port = 0;

    static constexpr quint16 DefaultPort = 3478;

    // Reads "stun:HOST" or "stun:HOST:PORT" (RFC 7064); nothing where it is neither.
    static std::optional<StunServer> fromUrl(const QString& url);
    QString toString() const; // "HOST:PORT", for people
};

} // namespace Platform
