// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace Platform {

// What a level of a microphone means: it is even in decibels, from FloorDb and below, which is 0,
// to full scale, which is 1.
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
