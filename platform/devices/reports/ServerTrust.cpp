// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "platform/devices/reports/ServerTrust.h"

#include "platform/backend/Log.h"
#include "platform/backend/WholeFile.h"

#include <QNetworkRequest>
#include <QSslCertificate>
#include <QSslConfiguration>

#ifdef QT_NO_SSL

void Platform::ServerTrust::addTo(QNetworkRequest& /*request*/)
{
}

#else

namespace {

constexpr const char* Variable = "SSL_CERT_FILE"; // as OpenSSL, Python, Go and others name it

} // namespace

void Platform::ServerTrust::addTo(QNetworkRequest& request)
{
    const QString path = qEnvironmentVariable(Variable);
    if (path.isEmpty() || request.url().scheme() != QLatin1String("https")) {
        return;
    }
    QByteArray content;
    const QString problem = WholeFile::read(path, &content);
    const QList<QSslCertificate> own = QSslCertificate::fromData(content, QSsl::Pem);
    if (own.isEmpty()) {
        qCWarning(Log::reports).noquote()
            << Variable << "names no certificates:" << path << problem;
        return;
    }
    QSslConfiguration trust = request.sslConfiguration();
    trust.setCaCertificates(own);
    request.setSslConfiguration(trust);
}

#endif
