// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <vector>

namespace Platform {

// The local sockets on which libpulse and libpipewire look for a server, as the environment says.
// Addresses in their configuration files and on other machines are left out.
namespace ServerSockets {

std::vector<QByteArray> ofPulse();
std::vector<QByteArray> ofPipeWire();

} // namespace ServerSockets
} // namespace Platform
