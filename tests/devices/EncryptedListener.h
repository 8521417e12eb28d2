// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>

// Takes TLS connections, with a certificate for 127.0.0.1 that openssl makes and nobody else knows.
class EncryptedListener : public QTcpServer
{
public:
    EncryptedListener();

    // Null if openssl made none.
    QSslCertificate certificate() const { return m_certificate; }

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QSslCertificate m_certificate;
    QSslKey m_key;
};
