// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace Platform {

// The level of a microphone is linear in decibels: 0 at FloorDb and below, 1 at full scale.
namespace LevelScale {

constexpr double FloorDb = -60.0;

inline double levelOf(double decibels)
{
    return std::clamp(1.0 - decibels / FloorDb, 0.0, 1.0);
}

inline double decibelsOf(double level)
{
    return FloorDb * (1.0 - std::clamp(level, 0.0, 1.0));
}

} // namespace LevelScale

} // namespace Platform
