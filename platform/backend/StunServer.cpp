// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/backend/StunServer.h"

#include <QUrl>

namespace Platform {

namespace {

const QLatin1String Scheme("stun:");

} // namespace

std::optional<StunServer> StunServer::fromText(const QString& text)
{
    const bool hasScheme = text.startsWith(Scheme, Qt::CaseInsensitive);
    const QString place = hasScheme ? text.mid(Scheme.size()) : text;
    // The scheme has no "//", so that QUrl would take host and port for a path.
    const QUrl parsed(QStringLiteral("stun://") + place, QUrl::StrictMode);
    const int port = parsed.port(DefaultPort);
    const bool hasMore = !parsed.path().isEmpty() || parsed.hasQuery() || parsed.hasFragment() ||
                         !parsed.userInfo().isEmpty();
    // A lone number is a port without a host, and QUrl would make an address of it.
    bool isNumber = false;
    place.section(QLatin1Char(':'), 0, 0).toULongLong(&isNumber);
    const bool hasHost = !parsed.host().isEmpty() && !isNumber;
    if (!parsed.isValid() || !hasHost || port == 0 || hasMore || place.endsWith(QLatin1Char(':'))) {
        return {};
    }
    return StunServer{parsed.host(), quint16(port), parsed.port() >= 0};
}

QString StunServer::toString() const
{
    if (mayHaveRecords()) {
        return host;
    }
    const QString pattern =
        host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return pattern.arg(host, QString::number(port));
}

// A name without a dot is one of this network, which has no such records. An address of IPv6 has
// colons, and the last part of an IPv4 address is a number.
bool StunServer::mayHaveRecords() const
{
    bool isNumber = false;
    host.section(QLatin1Char('.'), -1).toUInt(&isNumber);
    return !isPortGiven && !isNumber && host.contains(QLatin1Char('.')) &&
           !host.contains(QLatin1Char(':'));
}

} // namespace Platform
