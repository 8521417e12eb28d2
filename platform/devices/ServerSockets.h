// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <vector>

namespace Platform {

// Where libpulse and libpipewire look for a server of this machine, by the environment. Addresses
// in their configuration files and on other machines are left out.
namespace ServerSockets {

std::vector<QByteArray> ofPulse();
std::vector<QByteArray> ofPipeWire();

} // namespace ServerSockets
} // namespace Platform
