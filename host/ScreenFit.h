// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

// The window of the check has one size in logical pixels: how large it is on a screen is the scale
// factor's work. GUI thread only.
namespace ScreenFit {

constexpr QSize WindowSize(622, 462);

// Before the application object is made: factors such as 1.25 are taken as they are.
void takeFactorsAsTheyAre();

// Whether the window is larger than the screen that it opens on. Then the factor is lowered, and
// the application object has to be made anew.
bool hasLoweredFactor();

} // namespace ScreenFit
