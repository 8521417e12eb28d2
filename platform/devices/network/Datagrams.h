// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

namespace Platform {

constexpr int MaxDatagramSize = 1500;  // bytes: what an Ethernet frame carries
constexpr int MaxDatagramsAtOnce = 64; // a flood must not hold up the timers

} // namespace Platform
