// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

class QNetworkRequest;

namespace Platform {

// Which authorities may vouch for a report server: those of the system, or those in the PEM file
// that the environment variable SSL_CERT_FILE names instead. Without TLS in Qt there are none.
namespace ServerTrust {

// Reads the file if the variable is set and the request is an encrypted one.
void addTo(QNetworkRequest& request);

} // namespace ServerTrust
} // namespace Platform
