// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ClassroomBackend/ClassroomBackendExport.h"

#include <QString>
#include <optional>

namespace Platform {

// Where a STUN server is found.
struct CLASSROOMBACKEND_EXPORT StunServer
{
    QString host; // a name or an address, that of IPv6 without brackets
    quint16 port = 0;
    bool isPortGiven = true; // else the domain may name servers and ports by DNS records

    static constexpr quint16 DefaultPort = 3478;

    // What fromText() reads, for messages: a server, and an example.
    static constexpr const char* Form =
        "HOST or HOST:PORT, with or without stun: before it, such as stun:stun.example.org:3478";

    // Reads "HOST" or "HOST:PORT", also behind "stun:" (RFC 7064). The address of an IPv6 host
    // stands in brackets. Nothing if it isn't such a text.
    static std::optional<StunServer> fromText(const QString& text);
    // "HOST:PORT" for people, or the domain alone if its records may name another server.
    QString toString() const;
    bool mayHaveRecords() const; // a domain without a port
};

} // namespace Platform
