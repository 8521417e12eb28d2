// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tests/devices/EncryptedListener.h"

#include <QProcess>
#include <QSslSocket>

EncryptedListener::EncryptedListener()
{
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  QStringLiteral("req -x509 -newkey rsa:2048 -nodes -keyout - -days 2 "
                                 "-subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1")
                      .split(QLatin1Char(' ')));
    openssl.waitForFinished();
    const QByteArray both = openssl.readAllStandardOutput();
    m_certificate = QSslCertificate(both, QSsl::Pem);
    m_key = QSslKey(both, QSsl::Rsa, QSsl::Pem);
}

void EncryptedListener::incomingConnection(qintptr descriptor)
{
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setLocalCertificate(m_certificate);
    socket->setPrivateKey(m_key);
    socket->startServerEncryption();
    addPendingConnection(socket);
}
