// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Platform {
namespace LocalAddress {

// An address of this machine that others may reach, IPv4 first, otherwise the loopback address.
QString find();

} // namespace LocalAddress
} // namespace Platform
