// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/network/StunServer.h"

#include <QUrl>

namespace Platform {

namespace {

const QLatin1String Scheme("stun:");

} // namespace

std::optional<StunServer> StunServer::fromUrl(const QString& url)
{
    if (!url.startsWith(Scheme, Qt::CaseInsensitive)) {
        return {};
    }
    // The scheme has no "//", so that QUrl would take host and port for a path.
    const QUrl parsed(QStringLiteral("stun://") + url.mid(Scheme.size()), QUrl::StrictMode);
    const int port = parsed.port(DefaultPort);
    const bool hasMore = !parsed.path().isEmpty() || parsed.hasQuery() || parsed.hasFragment() ||
                         !parsed.userInfo().isEmpty();
    if (!parsed.isValid() || parsed.host().isEmpty() || port == 0 || hasMore) {
        return {};
    }
    return StunServer{parsed.host(), quint16(port)};
}

QString StunServer::toString() const
{
    const QString pattern =
        host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return pattern.arg(host, QString::number(port));
}

} // namespace Platform
